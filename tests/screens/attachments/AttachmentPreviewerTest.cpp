#include "screens/attachments/section/AttachmentPreviewer.h"

#include "model/JiraError.h"
#include "screens/attachments/FakeFileTools.h"
#include "screens/attachments/Samples.h"
#include "state/AppStoreFixture.h"
#include "support/RunUntil.h"

#include <QFile>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QStyleHints>

using namespace AttachmentSamples;
using namespace Qt::StringLiterals;

namespace {

class AttachmentPreviewerTest : public AppStoreFixture
{
protected:
    FakeFileTools fakes;
    AttachmentPreviewer previewer;
    const AttachmentFile first{file(u"1"_s, u"un.log"_s)};
    const AttachmentFile second{file(u"2"_s, u"deux.log"_s)};
    const AttachmentFile third{file(u"3"_s, u"trois.log"_s)};

    AttachmentPreviewerTest()
    {
        startSession();
        previewer.setStore(store.get());
        previewer.setTools(fakes.tools());
        previewer.setFiles({first, second, third});
    }

    static QUrl localURL(const QString &name) { return QUrl::fromLocalFile(u"/cache/"_s + name); }
    void finishFetch(int call, const QUrl &url) { service->downloadCalls[call].finish(url); }
    Toast lastToast() const { return store->toasts().value(store->toasts().size() - 1); }
    std::chrono::milliseconds doubleClickTime() const
    {
        return std::chrono::milliseconds(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    }
    QString written(const QString &name, const QByteArray &bytes) const
    {
        QFile out(folder.filePath(name));
        EXPECT_TRUE(out.open(QFile::WriteOnly));
        out.write(bytes);
        return out.fileName();
    }
    static QByteArray contentOf(const QString &path)
    {
        QFile in(path);
        return in.open(QFile::ReadOnly) ? in.readAll() : QByteArray();
    }
    /// Saves a file with this content at the place, as a user does, and waits for the toast.
    void saveAt(const QString &place, const QByteArray &content)
    {
        fakes.dialogs->place = QUrl::fromLocalFile(place);
        previewer.save(first);
        finishFetch(0, QUrl::fromLocalFile(written(u"source"_s, content)));
        EXPECT_TRUE(runUntil([&] { return !store->toasts().isEmpty(); }));
    }
};

} // namespace

TEST_F(AttachmentPreviewerTest, APreviewShowsTheFileOnceItIsFetched)
{
    previewer.preview(first);
    EXPECT_EQ(previewer.loadingID(), u"1"_s);
    EXPECT_EQ(previewer.url(), QUrl());
    finishFetch(0, localURL(u"un.log"_s));
    EXPECT_EQ(previewer.loadingID(), u""_s);
    EXPECT_EQ(previewer.url(), localURL(u"un.log"_s));
    EXPECT_EQ(previewer.file().id(), u"1"_s);
}

TEST_F(AttachmentPreviewerTest, ClosingThePreviewClearsIt)
{
    previewer.preview(first);
    finishFetch(0, localURL(u"un.log"_s));
    previewer.close();
    EXPECT_EQ(previewer.url(), QUrl());
}

TEST_F(AttachmentPreviewerTest, AFileThatArrivesAfterThePreviewWasClosedIsNotShown)
{
    previewer.preview(first);
    previewer.close();
    finishFetch(0, localURL(u"un.log"_s));
    EXPECT_EQ(previewer.url(), QUrl());
}

TEST_F(AttachmentPreviewerTest, AFailedFetchIsToldOnceAndNothingElseHappens)
{
    previewer.open(first);
    service->downloadCalls[0].fail(JiraError(JiraError::Http{404, u"Introuvable"_s}));
    EXPECT_EQ(previewer.loadingID(), u""_s);
    EXPECT_TRUE(desktop.opened.isEmpty());
    ASSERT_EQ(store->toasts().size(), 1);
    EXPECT_EQ(lastToast().kind, ToastKind::Error);
}

TEST_F(AttachmentPreviewerTest, OpenAndRevealActOnTheLocalFile)
{
    service->downloadCalls.answerWith(localURL(u"un.log"_s));
    previewer.open(first);
    EXPECT_EQ(desktop.opened, QList<QUrl>{localURL(u"un.log"_s)});
    previewer.reveal(first);
    EXPECT_EQ(fakes.manager->revealed, QList<QUrl>{localURL(u"un.log"_s)});
}

TEST_F(AttachmentPreviewerTest, ASingleClickPreviewsAfterTheDoubleClickTime)
{
    service->downloadCalls.answerWith(localURL(u"un.log"_s));
    previewer.click(first);
    EXPECT_EQ(previewer.url(), QUrl());
    clock.advance(doubleClickTime());
    EXPECT_EQ(previewer.url(), localURL(u"un.log"_s));
    EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST_F(AttachmentPreviewerTest, ADoubleClickOpensAndPreviewsNothing)
{
    service->downloadCalls.answerWith(localURL(u"un.log"_s));
    previewer.click(first);
    previewer.click(first);
    clock.advance(doubleClickTime() * 2);
    EXPECT_EQ(desktop.opened.size(), 1);
    EXPECT_EQ(previewer.url(), QUrl());
}

TEST_F(AttachmentPreviewerTest, ClicksOnTwoFilesAreNoDoubleClick)
{
    service->downloadCalls.answerWith(localURL(u"deux.log"_s));
    previewer.click(first);
    previewer.click(second);
    clock.advance(doubleClickTime());
    EXPECT_TRUE(desktop.opened.isEmpty());
    EXPECT_EQ(previewer.file().id(), u"2"_s);
}

TEST_F(AttachmentPreviewerTest, ASecondFetchReplacesTheSpinnerAndTheFirstToEndClearsIt)
{
    previewer.open(first);
    previewer.open(second);
    EXPECT_EQ(previewer.loadingID(), u"2"_s);
    finishFetch(0, localURL(u"un.log"_s));
    EXPECT_EQ(previewer.loadingID(), u""_s);
}

TEST_F(AttachmentPreviewerTest, TheSameFileAskedForTwiceAtOnceIsFetchedOnce)
{
    AttachmentPreviewer other;
    other.setStore(store.get());
    previewer.preview(first);
    other.preview(first);
    EXPECT_EQ(service->downloadCalls.count(), 1);
    finishFetch(0, localURL(u"un.log"_s));
    EXPECT_EQ(previewer.url(), localURL(u"un.log"_s));
    EXPECT_EQ(other.url(), localURL(u"un.log"_s));

    previewer.open(first);
    EXPECT_EQ(service->downloadCalls.count(), 2) << "a finished fetch is not kept";
}

TEST_F(AttachmentPreviewerTest, AFetchOfAnEndedSessionIsNotSharedWithTheNext)
{
    previewer.preview(first);
    store->signOut();
    startSession();
    previewer.preview(first);
    EXPECT_EQ(service->downloadCalls.count(), 2);
}

TEST_F(AttachmentPreviewerTest, ThePreviewerMayGoWhileAFileIsBeingFetched)
{
    {
        AttachmentPreviewer other;
        other.setStore(store.get());
        other.preview(first);
    }
    finishFetch(0, localURL(u"un.log"_s));
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AttachmentPreviewerTest, StepsGoThroughTheFilesAndStopAtTheEnds)
{
    service->downloadCalls.answerBy([](const Attachment &one) { return localURL(one.filename); });
    previewer.preview(second);
    previewer.step(1);
    EXPECT_EQ(previewer.file().id(), u"3"_s);
    previewer.step(1);
    EXPECT_EQ(previewer.file().id(), u"3"_s);
    previewer.step(-1);
    previewer.step(-1);
    previewer.step(-1);
    EXPECT_EQ(previewer.file().id(), u"1"_s);
}

TEST_F(AttachmentPreviewerTest, OfTwoPreviewsInQuickSuccessionTheLastOneIsShown)
{
    previewer.preview(first);
    previewer.preview(second);
    finishFetch(1, localURL(u"deux.log"_s));
    finishFetch(0, localURL(u"un.log"_s));
    EXPECT_EQ(previewer.url(), localURL(u"deux.log"_s));
    EXPECT_EQ(previewer.file().id(), u"2"_s);
    EXPECT_EQ(previewer.loadingID(), u""_s);
}

TEST_F(AttachmentPreviewerTest, AFileThatArrivesAfterTheIssueHasChangedIsNotShown)
{
    previewer.setKey(u"WEB-1"_s);
    previewer.preview(first);
    previewer.setKey(u"WEB-2"_s);
    finishFetch(0, localURL(u"un.log"_s));
    EXPECT_FALSE(previewer.isPreviewing());
}

TEST_F(AttachmentPreviewerTest, AnotherIssueEndsThePreviewAndAClickThatHasNoSecondYet)
{
    service->downloadCalls.answerWith(localURL(u"un.log"_s));
    previewer.setKey(u"WEB-1"_s);
    previewer.preview(first);
    ASSERT_TRUE(previewer.isPreviewing());
    previewer.click(second);
    previewer.setKey(u"WEB-2"_s);
    EXPECT_FALSE(previewer.isPreviewing());
    clock.advance(doubleClickTime());
    EXPECT_FALSE(previewer.isPreviewing());
}

TEST_F(AttachmentPreviewerTest, SigningOutDuringADownloadEndsItWithoutAToast)
{
    previewer.preview(first);
    store->signOut();
    EXPECT_EQ(previewer.loadingID(), u""_s);
    EXPECT_FALSE(previewer.isPreviewing());
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AttachmentPreviewerTest, SigningOutWhileTheSaveDialogIsOpenSavesNothing)
{
    fakes.dialogs->isOpen = true;
    fakes.dialogs->place = QUrl::fromLocalFile(folder.filePath(u"copie.log"_s));
    previewer.save(first);
    finishFetch(0, QUrl::fromLocalFile(written(u"source"_s, "contenu")));
    ASSERT_EQ(fakes.dialogs->names.size(), 1);
    store.reset();
    fakes.dialogs->answer();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"copie.log"_s)));
}

TEST_F(AttachmentPreviewerTest, TwoQuickStepsShowOnlyTheLastFile)
{
    previewer.preview(first);
    finishFetch(0, localURL(u"un.log"_s));
    previewer.step(1);
    previewer.step(1);
    ASSERT_EQ(service->downloadCalls.count(), 3);
    finishFetch(2, localURL(u"trois.log"_s));
    finishFetch(1, localURL(u"deux.log"_s));
    EXPECT_EQ(previewer.file().id(), u"3"_s);
}

TEST_F(AttachmentPreviewerTest, SavingTellsTheName)
{
    saveAt(folder.filePath(u"copie.log"_s), "contenu");
    EXPECT_EQ(fakes.dialogs->names, QStringList{u"un.log"_s});
    EXPECT_EQ(contentOf(folder.filePath(u"copie.log"_s)), "contenu");
    EXPECT_EQ(lastToast().message, u"« un.log » enregistré"_s);
    EXPECT_EQ(lastToast().symbol, u"arrow.down.circle.fill"_s);
    EXPECT_EQ(lastToast().kind, ToastKind::Notice);
}

TEST_F(AttachmentPreviewerTest, SavingOverAnExistingFileReplacesItWithoutAnError)
{
    const QString place = written(u"copie.log"_s, "ancien contenu");
    saveAt(place, "neuf");
    EXPECT_EQ(contentOf(place), "neuf");
    EXPECT_EQ(lastToast().kind, ToastKind::Notice);
}

TEST_F(AttachmentPreviewerTest, CancellingTheSaveDialogGivesNoToast)
{
    previewer.save(first);
    finishFetch(0, localURL(u"un.log"_s));
    EXPECT_EQ(fakes.dialogs->names.size(), 1);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AttachmentPreviewerTest, ADestinationWithoutPermissionIsToldInAToast)
{
    saveAt(u"/proc/copie.log"_s, "contenu");
    EXPECT_EQ(lastToast().kind, ToastKind::Error);
    EXPECT_EQ(lastToast().symbol, u"exclamationmark.triangle.fill"_s);
    EXPECT_TRUE(lastToast().message.contains(u"le droit d'écrire"_s));
}

class ProposedName : public AttachmentPreviewerTest,
                     public testing::WithParamInterface<std::pair<QString, QString>>
{
};

INSTANTIATE_TEST_SUITE_P(
    Names, ProposedName,
    testing::Values(std::pair(u"../../.bashrc"_s, u".bashrc"_s), std::pair(u".."_s, u"fichier"_s),
                    std::pair(u"."_s, u"fichier"_s), std::pair(u""_s, u"fichier"_s),
                    std::pair(u"dossier/"_s, u"fichier"_s),
                    std::pair(u"a\nb\u0000.log"_s, u"ab.log"_s),
                    std::pair(u"facture\u202Egpj.exe"_s, u"facturegpj.exe"_s)));

TEST_P(ProposedName, LeadsIntoNoOtherFolderAndHidesNothing)
{
    previewer.save({file(u"9"_s, GetParam().first)});
    finishFetch(0, localURL(u"x"_s));
    EXPECT_EQ(fakes.dialogs->names, QStringList{GetParam().second});
}

TEST_F(AttachmentPreviewerTest, AVeryLongNameIsProposedShortenedWithItsExtension)
{
    previewer.save({file(u"9"_s, QString(400, u'é') + u".log"_s)});
    finishFetch(0, localURL(u"x"_s));
    ASSERT_EQ(fakes.dialogs->names.size(), 1);
    const QString name = fakes.dialogs->names.constFirst();
    EXPECT_LE(name.toUtf8().size(), 200);
    EXPECT_TRUE(name.endsWith(u".log"_s));
}
