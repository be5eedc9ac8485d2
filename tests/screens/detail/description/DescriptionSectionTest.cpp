#include "model/JiraError.h"
#include "screens/detail/description/DescriptionWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

using namespace Qt::StringLiterals;

class DescriptionSection : public DescriptionWindow
{
};

// Reading -------------------------------------------------------------------------------------------------------------

TEST_F(DescriptionSection, ThePlaceOfAnUnknownDescriptionIsHeldBySkeletonBars)
{
    openUnknown();
    EXPECT_TRUE(has(QAccessible::Indicator, u"Chargement…"_s));
    EXPECT_EQ(section()->implicitHeight(), 46);
    answer(described({}));
    settle();
    EXPECT_FALSE(has(QAccessible::Indicator, u"Chargement…"_s));
    EXPECT_TRUE(has(Button, u"Ajouter une description…"_s));
}

TEST_F(DescriptionSection, ADescriptionIsADocumentWithItsName)
{
    open(described(u"Bonjour [ici](https://exemple.fr)"_s));
    const Spoken document = find(QAccessible::Document, u"Description"_s);
    EXPECT_EQ(document.box.left(), 20);
    EXPECT_EQ(document.box.width(), 560);
}

TEST_F(DescriptionSection, ALinkIsReportedToTheHost)
{
    open(described(u"[ici](https://exemple.fr/a) et là"_s));
    const Spoken document = find(QAccessible::Document, u"Description"_s);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, document.box.topLeft() + QPoint(8, 8));
    EXPECT_EQ(page->property("link"), u"https://exemple.fr/a"_s);
}

TEST_F(DescriptionSection, TheButtonIsSeenUnderThePointerOnly)
{
    open(described(u"Bonjour"_s));
    const QPoint spot = find(Button, u"Modifier"_s).box.center();
    const QImage empty = picture();
    moveTo({100, 50});
    const QImage hovered = picture();
    const QRect box = find(Button, u"Modifier"_s).box;
    EXPECT_NE(empty.copy(box), hovered.copy(box));
    moveTo(spot);
    EXPECT_NE(empty.copy(box), picture().copy(box)) << "it stays while it is itself hovered";
    moveTo({300, 390});
    EXPECT_EQ(empty.copy(box), picture().copy(box));
}

TEST_F(DescriptionSection, TheButtonIsSeenWithTheKeyboardFocus)
{
    open(described(u"Bonjour"_s));
    const QRect box = find(Button, u"Modifier"_s).box;
    const QImage before = picture();
    for (int i = 0; i < 3 && focusedName() != u"Modifier la description"_s; ++i)
        press(Qt::Key_Tab);
    ASSERT_EQ(focusedName(), u"Modifier la description"_s);
    settle();
    EXPECT_NE(before.copy(box), picture().copy(box));
    press(Qt::Key_Return);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(focusedName(), u"Description"_s);
}

TEST_F(DescriptionSection, AMissingDescriptionIsAddedByKeysAlone)
{
    open(described({}));
    for (int i = 0; i < 3 && focusedName() != u"Ajouter une description…"_s; ++i)
        press(Qt::Key_Tab);
    press(Qt::Key_Space);
    ASSERT_TRUE(isEditing());
    type(u"Bonjour"_s);
    save();
    EXPECT_EQ(shown(), u"Bonjour"_s);
    EXPECT_EQ(focusedName(), u"Modifier la description"_s);
}

// Editing -------------------------------------------------------------------------------------------------------------

TEST_F(DescriptionSection, TheEditorHasTheFocusAndTheMarkdown)
{
    open(described(u"## Titre\n\n**gras**"_s));
    edit();
    EXPECT_EQ(focusedName(), u"Description"_s);
    EXPECT_EQ(text(), u"## Titre\n\n**gras**"_s);
    EXPECT_FALSE(has(QAccessible::Document, u"Description"_s));
    const QRect box = find(Text, u"Description"_s).box;
    EXPECT_EQ(box.left(), 30);
    EXPECT_EQ(box.width(), 540);
    EXPECT_EQ(box.height(), 160);
}

TEST_F(DescriptionSection, ControlReturnSavesAndInsertsNothing)
{
    open(described(u"Bonjour"_s));
    edit();
    press(Qt::Key_End);
    type(u" à tous"_s);
    save();
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(shown(), u"Bonjour à tous"_s);
    ASSERT_EQ(service->updateCalls.count(), 1);
    EXPECT_EQ(focusedName(), u"Modifier la description"_s);
}

TEST_F(DescriptionSection, EscapeCancelsTheEditingOnly)
{
    open(described(u"Bonjour"_s));
    edit();
    type(u"x"_s);
    press(Qt::Key_Escape);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(page->property("escapes"), 0);
    EXPECT_EQ(shown(), u"Bonjour"_s);
    EXPECT_EQ(service->updateCalls.count(), 0);
    EXPECT_EQ(focusedName(), u"Modifier la description"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(page->property("escapes"), 1);
}

TEST_F(DescriptionSection, TheButtonsSaveAndCancel)
{
    open(described(u"Bonjour"_s));
    edit();
    type(u"x"_s);
    click(Button, u"Annuler"_s);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(shown(), u"Bonjour"_s);
    edit();
    type(u"y"_s);
    click(Button, u"Enregistrer"_s);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(shown(), u"yBonjour"_s);
    EXPECT_EQ(service->updateCalls.count(), 1);
}

TEST_F(DescriptionSection, AScreenReaderSavesOnce)
{
    open(described(u"Bonjour"_s));
    EXPECT_TRUE(pressAction(bench.window(), Button, u"Modifier la description"_s));
    ASSERT_TRUE(isEditing());
    type(u"x"_s);
    EXPECT_TRUE(pressAction(bench.window(), Button, u"Enregistrer"_s));
    EXPECT_FALSE(pressAction(bench.window(), Button, u"Enregistrer"_s));
    EXPECT_EQ(service->updateCalls.count(), 1);
}

TEST_F(DescriptionSection, TabLeavesTheEditorForTheButtonsAndTheRestOfThePage)
{
    open(described(u"Bonjour"_s));
    edit();
    QStringList names;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        names.append(focusedName());
    }
    EXPECT_EQ(names, (QStringList{u"Annuler"_s, u"Enregistrer"_s, u"Après"_s}));
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), u"Description"_s);
    EXPECT_EQ(text(), u"Bonjour"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), u"Avant"_s);
    EXPECT_TRUE(isEditing());
}

TEST_F(DescriptionSection, TheKeysWorkOnTheButtonsTooAndNotOutside)
{
    open(described(u"Bonjour"_s));
    edit();
    type(u"x"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    save();
    press(Qt::Key_Escape);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(page->property("escapes"), 1) << "outside the editor it is the key of the page";
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), u"Annuler"_s);
    save();
    EXPECT_EQ(shown(), u"xBonjour"_s);
}

TEST_F(DescriptionSection, UndoAndRedoStopAtTheTextOfTheDescription)
{
    open(described(u"Bonjour"_s));
    edit();
    press(Qt::Key_End);
    type(u" toi"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), u"Bonjour"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), u"Bonjour"_s);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(text(), u"Bonjour toi"_s);
}

TEST_F(DescriptionSection, FormattedTextIsPastedAsPlainText)
{
    open(described({}));
    edit();
    auto data = std::make_unique<QMimeData>();
    data->setHtml(u"<b>gras</b>"_s);
    data->setText(u"gras"_s);
    QGuiApplication::clipboard()->setMimeData(data.release());
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(), u"gras"_s);
}

TEST_F(DescriptionSection, ReturnIsALineBreak)
{
    open(described({}));
    edit();
    type(u"un"_s);
    press(Qt::Key_Return);
    type(u"deux"_s);
    save();
    EXPECT_EQ(shown(), u"un\ndeux"_s);
}

TEST_F(DescriptionSection, TheButtonsOfTheEditorAreInSightAtOnceAndWhileTheTextGrows)
{
    open(described(u"Bonjour"_s));
    section()->setY(200);
    section()->parentItem()->parentItem()->setProperty("bottomMargin", 600);
    settle();
    moveTo({100, 250});
    edit();
    const int edge = 360;
    EXPECT_LE(find(Button, u"Enregistrer"_s).box.bottom(), edge);
    for (int i = 0; i < 12; ++i)
        press(Qt::Key_Return);
    settle();
    EXPECT_LE(find(Button, u"Enregistrer"_s).box.bottom(), edge);
    EXPECT_LE(focused()->mapRectToScene(focused()->property("cursorRectangle").toRectF()).bottom(),
              edge);
}

TEST_F(DescriptionSection, TheCaretStaysInSightWhileTheTextGrows)
{
    open(described({}));
    edit();
    for (int i = 0; i < 40; ++i) {
        type(u"ligne"_s);
        press(Qt::Key_Return);
    }
    settle();
    const auto *caret = focused();
    const QRectF inside = caret->property("cursorRectangle").toRectF();
    const QRectF place = caret->mapRectToScene(inside);
    EXPECT_GE(place.top(), 40);
    EXPECT_LE(place.bottom(), 360);
    EXPECT_LE(find(Button, u"Enregistrer"_s).box.bottom(), 40 + section()->implicitHeight() + 1)
        << "the editor grows only as far as the page is high";
    EXPECT_LE(section()->implicitHeight(), 320);
}

// What arrives meanwhile ----------------------------------------------------------------------------------------------

TEST_F(DescriptionSection, ARefreshDuringEditingMovesNeitherTextNorCaretNorFocus)
{
    open(described(u"Bonjour"_s));
    edit();
    press(Qt::Key_End);
    type(u" toi"_s);
    press(Qt::Key_Left);
    refresh(described(u"D'un autre"_s));
    EXPECT_EQ(text(), u"Bonjour toi"_s);
    EXPECT_EQ(focused()->property("cursorPosition"), 10);
    type(u"X"_s);
    EXPECT_EQ(text(), u"Bonjour toXi"_s);
}

TEST_F(DescriptionSection, ASlowAnswerDuringTheNextEditingTouchesNothing)
{
    open(described(u"Bonjour"_s));
    edit();
    type(u"1"_s);
    save();
    edit();
    type(u"2"_s);
    clock.advance(std::chrono::milliseconds(1500));
    service->updateCalls[0].finish({});
    settle();
    EXPECT_EQ(text(), u"21Bonjour"_s);
    EXPECT_EQ(focusedName(), u"Description"_s);
    save();
    EXPECT_EQ(service->updateCalls.count(), 2);
    EXPECT_EQ(shown(), u"21Bonjour"_s);
}

TEST_F(DescriptionSection, ASignOutDuringEditingEndsItWithoutAWrite)
{
    open(described(u"Bonjour"_s));
    edit();
    type(u"x"_s);
    store->signOut();
    settle();
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(service->updateCalls.count(), 0);
}

TEST_F(DescriptionSection, AnotherIssueBeginsAfresh)
{
    open(described(u"Bonjour"_s));
    edit();
    type(u"x"_s);
    issue()->setKey(u"MOB-2"_s);
    EXPECT_FALSE(isEditing());
    Issue second = described(u"Deux"_s);
    second.key = u"MOB-2"_s;
    answer(second);
    settle();
    edit();
    EXPECT_EQ(text(), u"Deux"_s);
}

// Abandoned texts -----------------------------------------------------------------------------------------------------

TEST_F(DescriptionSection, ACancelledTextIsTakenUpWithOnePressAndOneUndo)
{
    open(described(u"Bonjour"_s));
    edit();
    EXPECT_FALSE(has(Button, u"Reprendre le brouillon"_s));
    press(Qt::Key_End);
    type(u" toi"_s);
    press(Qt::Key_Escape);
    edit();
    EXPECT_EQ(text(), u"Bonjour"_s);
    click(Button, u"Reprendre le brouillon"_s);
    EXPECT_EQ(text(), u"Bonjour toi"_s);
    EXPECT_EQ(focusedName(), u"Description"_s);
    EXPECT_FALSE(has(Button, u"Reprendre le brouillon"_s));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), u"Bonjour"_s);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    save();
    EXPECT_EQ(shown(), u"Bonjour toi"_s);
}

TEST_F(DescriptionSection, ARefusedTextIsTakenUpByTheKeyboard)
{
    open(described(u"Bonjour"_s));
    edit();
    type(u"x"_s);
    save();
    service->updateCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    settle();
    EXPECT_EQ(shown(), u"Bonjour"_s);
    press(Qt::Key_Return);
    ASSERT_TRUE(isEditing());
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), u"Reprendre le brouillon"_s);
    press(Qt::Key_Space);
    EXPECT_EQ(text(), u"xBonjour"_s);
    EXPECT_EQ(store->toasts().size(), 1);
}
