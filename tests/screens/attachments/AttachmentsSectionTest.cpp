#include "model/text/VisibleText.h"
#include "screens/attachments/AttachmentStage.h"
#include "screens/attachments/Samples.h"
#include "screens/attachments/section/FileTileModel.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class AttachmentsSectionTest : public AttachmentStage
{
protected:
    /// Four text files, which fill a row of three tiles and begin a second one.
    void openFour()
    {
        QList<Attachment> files;
        for (const auto &name : {u"a.txt"_s, u"b.txt"_s, u"c.txt"_s, u"d.txt"_s})
            files += cached(name.first(1), name, u"text/plain"_s, "contenu de " + name.toUtf8());
        open(files);
    }
    /// The issue gets this number of other files. The tiles that have to wait do not exist yet.
    void receive(int count)
    {
        Issue issue = sampleIssue(u"WEB-1"_s);
        for (int i = 0; i < count; ++i)
            issue.attachments += AttachmentSamples::file(u"neuf %1"_s.arg(i), u"neuf-%1"_s.arg(i));
        reloadWith({issue});
    }
    int gridHeight()
    {
        return spokenIn(window(), QAccessible::List, u"Fichiers joints"_s).value(0).box.height();
    }
    QRect tileBox(const QString &name)
    {
        return spokenIn(window(), QAccessible::ListItem, name).value(0).box;
    }
    Toast lastToast() const { return store->toasts().value(store->toasts().size() - 1); }
};

const QUrl NewFile = QUrl::fromLocalFile(u"/tmp/neuf.log"_s);

} // namespace

TEST_F(AttachmentsSectionTest, WithoutFilesItTellsHowToAddSome)
{
    open({});
    EXPECT_TRUE(awaits(QAccessible::StaticText, u"Aucune pièce jointe."_s));
    EXPECT_TRUE(namesOf(QAccessible::ListItem).isEmpty());
}

TEST_F(AttachmentsSectionTest, TheTilesStandInRowsOfThreeInTheOrderOfTheIssue)
{
    openFour();
    window().grabWindow();
    const auto tiles = spokenIn(window(), QAccessible::ListItem);
    ASSERT_EQ(tiles.size(), 4);
    EXPECT_EQ(tiles[0].name, u"a.txt"_s);
    EXPECT_EQ(tiles[0].description, u"16\u00A0octets"_s);
    EXPECT_EQ(tiles[0].box.size(), QSize(141, 139));
    EXPECT_EQ(tiles[1].box.topLeft() - tiles[0].box.topLeft(), QPoint(151, 0));
    EXPECT_EQ(tiles[3].box.topLeft() - tiles[0].box.topLeft(), QPoint(0, 149));
}

TEST_F(AttachmentsSectionTest, UploadsFollowTheFilesAndReplaceTheEmptyText)
{
    open({});
    const TaskResult<QList<Attachment>> upload(store->uploadAttachments(
        u"WEB-1"_s, {NewFile, QUrl::fromLocalFile(u"/tmp/\u202Egpj.exe"_s)}));
    ASSERT_TRUE(awaits(QAccessible::ListItem, u"Envoi de neuf.log"_s));
    EXPECT_EQ(
        namesOf(QAccessible::ListItem),
        QStringList({u"Envoi de neuf.log"_s, u"Envoi de "_s + visibleText(u"\u202Egpj.exe"_s)}));
    EXPECT_TRUE(spokenIn(window(), QAccessible::StaticText, u"Aucune pièce"_s).isEmpty());
}

TEST_F(AttachmentsSectionTest, TheArrowKeysMoveBetweenTheTiles)
{
    openFour();
    goToTiles();
    EXPECT_EQ(focusedTile(), u"a.txt"_s);
    press(Qt::Key_Right);
    EXPECT_EQ(focusedTile(), u"b.txt"_s);
    press(Qt::Key_Down);
    EXPECT_EQ(focusedTile(), u"d.txt"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(focusedTile(), u"a.txt"_s);
    press(Qt::Key_End);
    EXPECT_EQ(focusedTile(), u"d.txt"_s);
    press(Qt::Key_Right);
    EXPECT_EQ(focusedTile(), u"d.txt"_s);
    press(Qt::Key_Home);
    press(Qt::Key_Left);
    EXPECT_EQ(focusedTile(), u"a.txt"_s);
}

TEST_F(AttachmentsSectionTest, TheTileThatTheKeysReachAsksToBeSeen)
{
    openFour();
    goToTiles();
    EXPECT_EQ(revealed(), tileBox(u"a.txt"_s));
    press(Qt::Key_Down);
    EXPECT_EQ(revealed(), tileBox(u"d.txt"_s));
}

TEST_F(AttachmentsSectionTest, ManyTilesAreMadeInStepsInAGridOfTheFinalHeight)
{
    openFour();
    receive(60);
    EXPECT_EQ(namesOf(QAccessible::ListItem).size(), FileTileModel::firstStep);
    EXPECT_EQ(gridHeight(), 20 * 149 - 10);
    ASSERT_TRUE(awaits(QAccessible::ListItem, u"neuf-59"_s));
    EXPECT_EQ(namesOf(QAccessible::ListItem).size(), 60);
    EXPECT_EQ(gridHeight(), 20 * 149 - 10);
}

TEST_F(AttachmentsSectionTest, TheEndKeyReachesATileThatHadToWait)
{
    openFour();
    goToTiles();
    receive(60);
    ASSERT_TRUE(spokenIn(window(), QAccessible::ListItem, u"neuf-59"_s).isEmpty());
    press(Qt::Key_End);
    EXPECT_EQ(focusedTile(), u"neuf-59"_s);
}

TEST_F(AttachmentsSectionTest, DeletingWhileTilesWaitLeavesTheOthers)
{
    openFour();
    goToTiles();
    receive(60);
    receive(59);
    press(Qt::Key_Home);
    EXPECT_EQ(focusedTile(), u"neuf-0"_s);
    receive(30);
    ASSERT_TRUE(awaits(QAccessible::ListItem, u"neuf-29"_s));
    EXPECT_EQ(namesOf(QAccessible::ListItem).size(), 30);
}

TEST_F(AttachmentsSectionTest, ReturnOpensTheFile)
{
    openFour();
    goToTiles();
    press(Qt::Key_Return);
    ASSERT_EQ(desktop.opened.size(), 1);
    EXPECT_EQ(desktop.opened.constFirst(), QUrl::fromLocalFile(folder.filePath(u"a"_s)));
}

TEST_F(AttachmentsSectionTest, SpacePreviewsAndSpaceClosesAgain)
{
    openFour();
    goToTiles();
    press(Qt::Key_Space);
    QQuickWindow *preview = previewWindow();
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(preview->title(), u"a.txt"_s);
    pressIn(*preview, Qt::Key_Space);
    EXPECT_TRUE(awaitsNoPreview());
}

TEST_F(AttachmentsSectionTest, OneClickPreviewsAndADoubleClickOpens)
{
    openFour();
    click(QAccessible::ListItem, u"b.txt"_s);
    clock.advance(doubleClickTime());
    EXPECT_NE(previewWindow(), nullptr);
    EXPECT_TRUE(desktop.opened.isEmpty());
    previewer().close();
    ASSERT_TRUE(awaitsNoPreview());

    const QPoint middle = spokenIn(window(), QAccessible::ListItem, u"c.txt"_s)[0].box.center();
    QTest::mouseDClick(&window(), Qt::LeftButton, {}, middle);
    clock.advance(doubleClickTime());
    EXPECT_EQ(desktop.opened, QList<QUrl>{QUrl::fromLocalFile(folder.filePath(u"c"_s))});
    EXPECT_TRUE(awaitsNoPreview());
}

TEST_F(AttachmentsSectionTest, ARightClickOffersWhatCanBeDoneInOrder)
{
    openFour();
    click(QAccessible::ListItem, u"b.txt"_s, Qt::RightButton);
    ASSERT_TRUE(awaits(QAccessible::MenuItem, u"Aperçu"_s));
    EXPECT_EQ(namesOf(QAccessible::MenuItem),
              QStringList({u"Aperçu"_s, u"Ouvrir"_s, u"Enregistrer sous…"_s,
                           u"Afficher dans le gestionnaire de fichiers"_s, u"Supprimer…"_s}));
    click(QAccessible::MenuItem, u"Afficher dans"_s);
    EXPECT_EQ(fakes.manager->revealed, QList<QUrl>{QUrl::fromLocalFile(folder.filePath(u"b"_s))});
}

TEST_F(AttachmentsSectionTest, TheMenuKeyAndShiftF10OpenTheMenuOfTheTileWithTheFocus)
{
    openFour();
    goToTiles();
    press(Qt::Key_Right);
    press(Qt::Key_Menu);
    click(QAccessible::MenuItem, u"Ouvrir"_s);
    EXPECT_EQ(desktop.opened, QList<QUrl>{QUrl::fromLocalFile(folder.filePath(u"b"_s))});
    ASSERT_TRUE(awaitsNo(QAccessible::MenuItem, u"Ouvrir"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return focusedTile() == u"b.txt"_s; }));

    press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(awaits(QAccessible::MenuItem, u"Ouvrir"_s));
    press(Qt::Key_Escape);
    EXPECT_TRUE(awaitsNo(QAccessible::MenuItem, u"Ouvrir"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return focusedTile() == u"b.txt"_s; }));
}

TEST_F(AttachmentsSectionTest, OnlyTheRedButtonDeletes)
{
    openFour();
    goToTiles();
    press(Qt::Key_Delete);
    ASSERT_TRUE(awaits(QAccessible::Heading, u"Supprimer « a.txt » ?"_s));
    EXPECT_FALSE(spokenIn(window(), QAccessible::StaticText,
                          u"La pièce jointe sera retirée du ticket pour tout le monde."_s)
                     .isEmpty());
    press(Qt::Key_Escape);
    ASSERT_TRUE(awaitsNo(QAccessible::Heading, u"Supprimer"_s));
    press(Qt::Key_Delete);
    ASSERT_TRUE(awaits(QAccessible::Heading, u"Supprimer"_s));
    press(Qt::Key_Return);
    ASSERT_TRUE(awaitsNo(QAccessible::Heading, u"Supprimer"_s));
    EXPECT_EQ(service->deleteAttachmentCalls.count(), 0) << "the focus is on the other button";

    press(Qt::Key_Delete);
    click(QAccessible::Button, u"Supprimer de Jira"_s);
    ASSERT_EQ(service->deleteAttachmentCalls.count(), 1);
    EXPECT_EQ(service->deleteAttachmentCalls[0].argument<0>(), u"a"_s);
    EXPECT_TRUE(awaitsNo(QAccessible::ListItem, u"a.txt"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return focusedTile() == u"b.txt"_s; }));
}

TEST_F(AttachmentsSectionTest, TheButtonOpensTheDialogAndUploadsWhatIsChosen)
{
    openFour();
    fakes.dialogs->files = {NewFile};
    click(QAccessible::Button, u"Joindre"_s);
    ASSERT_EQ(service->uploadAttachmentsCalls.count(), 1);
    EXPECT_EQ(service->uploadAttachmentsCalls[0].argument<1>(), QList<QUrl>{NewFile});
}

TEST_F(AttachmentsSectionTest, TheMenuOfTheButtonIsReachedByKeyAndPastes)
{
    openFour();
    desktop.files = {NewFile};
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    ASSERT_TRUE(awaits(QAccessible::MenuItem, u"Choisir des fichiers…"_s));
    EXPECT_EQ(namesOf(QAccessible::MenuItem),
              QStringList({u"Choisir des fichiers…"_s, u"Coller depuis le presse-papiers"_s}));
    click(QAccessible::MenuItem, u"Coller"_s);
    ASSERT_EQ(service->uploadAttachmentsCalls.count(), 1);
    EXPECT_TRUE(fakes.dialogs->titles.isEmpty());
}

TEST_F(AttachmentsSectionTest, FilesDroppedAnywhereAreUploaded)
{
    openFour();
    EXPECT_TRUE(drop({NewFile, QUrl(u"https://exemple.fr/a"_s)}));
    ASSERT_EQ(service->uploadAttachmentsCalls.count(), 1);
    EXPECT_EQ(service->uploadAttachmentsCalls[0].argument<1>(), QList<QUrl>{NewFile});
}

TEST_F(AttachmentsSectionTest, ADropWithoutALocalFileIsRefused)
{
    openFour();
    EXPECT_FALSE(drop({QUrl(u"https://exemple.fr/a"_s)}));
    EXPECT_EQ(service->uploadAttachmentsCalls.count(), 0);
}

TEST_F(AttachmentsSectionTest, WhileFilesAreDraggedOverTheScreenItSaysWhereTheyGo)
{
    openFour();
    dragOver({NewFile});
    EXPECT_TRUE(awaits(QAccessible::StaticText, u"Déposer pour joindre à WEB-1"_s));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&window(), &leave);
    EXPECT_TRUE(awaitsNo(QAccessible::StaticText, u"Déposer"_s));
}

TEST_F(AttachmentsSectionTest, AFileThatVanishesBeforeTheUploadIsToldAndLeavesNoTile)
{
    openFour();
    fakes.dialogs->files = {NewFile};
    click(QAccessible::Button, u"Joindre"_s);
    service->uploadAttachmentsCalls[0].fail(
        Failure(u"Impossible de lire le fichier « neuf.log »."_s));
    EXPECT_EQ(lastToast().message, u"Impossible de lire le fichier « neuf.log »."_s);
    EXPECT_TRUE(awaitsNo(QAccessible::ListItem, u"Envoi de neuf.log"_s));
}

TEST_F(AttachmentsSectionTest, ATrickInANameIsSeenOnItsTile)
{
    open({cached(u"1"_s, u"facture\u202Egpj.exe"_s, u"application/octet-stream"_s, "MZ")});
    EXPECT_TRUE(awaits(QAccessible::ListItem, u"facture[U+202E]gpj.exe"_s));
}

TEST_F(AttachmentsSectionTest, AnotherIssueWithdrawsTheQuestionAboutAFile)
{
    openFour();
    goToTiles();
    press(Qt::Key_Delete);
    ASSERT_TRUE(awaits(QAccessible::Heading, u"Supprimer"_s));
    showIssue(u"WEB-2"_s);
    EXPECT_TRUE(awaitsNo(QAccessible::Heading, u"Supprimer"_s));
    EXPECT_EQ(service->deleteAttachmentCalls.count(), 0);
    click(QAccessible::Button, u"Joindre"_s);
    EXPECT_EQ(fakes.dialogs->titles.size(), 1) << "nothing covers the window";
}

TEST_F(AttachmentsSectionTest, AnotherIssueClosesTheMenuOfAFile)
{
    openFour();
    goToTiles();
    press(Qt::Key_Menu);
    ASSERT_TRUE(awaits(QAccessible::MenuItem, u"Ouvrir"_s));
    showIssue(u"WEB-2"_s);
    EXPECT_TRUE(awaitsNo(QAccessible::MenuItem, u"Ouvrir"_s));
    click(QAccessible::Button, u"Joindre"_s);
    EXPECT_EQ(fakes.dialogs->titles.size(), 1) << "nothing covers the window";
}
