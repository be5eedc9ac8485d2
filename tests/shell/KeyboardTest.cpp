#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class Keyboard : public WindowFixture
{
protected:
    Keyboard()
    {
        serve({u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s});
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        openOnDemo();
    }

    std::string focus() { return store().focusedKey().value_or(u"nothing"_s).toStdString(); }
    Spoken searchField() { return find(QAccessible::EditableText, u"Filtrer"_s); }
};

TEST_F(Keyboard, TheArrowsAndJAndKMoveTheFocus)
{
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "MOB-1");
    press(Qt::Key_J);
    EXPECT_EQ(focus(), "MOB-2");
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "MOB-3");
    press(Qt::Key_K);
    EXPECT_EQ(focus(), "MOB-2");
    press(Qt::Key_Up);
    EXPECT_EQ(focus(), "MOB-1");
}

TEST_F(Keyboard, HomeEndAndThePageKeysMoveTheFocusInListAndBoard)
{
    QStringList many;
    for (int i = 1; i <= 100; ++i)
        many += u"MOB-%1"_s.arg(i);
    serve(many);
    reload();
    const auto place = [&] { return store().focusedKey().value_or(QString()).mid(4).toInt(); };
    for (const Qt::Key layout : {Qt::Key_1, Qt::Key_2}) {
        press(layout);
        settle();
        press(Qt::Key_End);
        EXPECT_EQ(place(), 100);
        press(Qt::Key_Home);
        EXPECT_EQ(place(), 1);
        press(Qt::Key_PageDown);
        const int page = place() - 1;
        EXPECT_GT(page, 2);
        EXPECT_LT(page, 30);
        const QString reached = u"MOB-%1,"_s.arg(place());
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return spokenIn(window(), QAccessible::ListItem, reached).size() == 1; }));
        press(Qt::Key_PageDown);
        EXPECT_EQ(place(), 1 + 2 * page);
        press(Qt::Key_PageUp);
        EXPECT_EQ(place(), 1 + page);
    }
    EXPECT_TRUE(store().checked().isEmpty());
}

TEST_F(Keyboard, ShiftEndChecksAllFromTheFocusOn)
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(store().checked(), (QSet<QString>{u"MOB-2"_s, u"MOB-3"_s}));
}

TEST_F(Keyboard, ControlAChecksWhatIsShownAndSelectsTextInAField)
{
    store().setFilterText(u"mob"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(store().checked(), (QSet<QString>{u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s}));
    press(Qt::Key_Escape);
    click(searchField());
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(store().checked().isEmpty());
    type(u"x"_s);
    EXPECT_EQ(store().filterText(), u"x"_s);
}

TEST_F(Keyboard, TheQuestionMarkAsksForTheReferenceOfShortcuts)
{
    QSignalSpy asked(&store(), &AppStore::shortcutsRequested);
    press(Qt::Key_Question, Qt::ShiftModifier);
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(Keyboard, AListWithoutAFocusedIssueShowsThatTabHasReachedIt)
{
    const auto rings = [&] {
        const auto *list = window().activeFocusItem();
        for (const auto *item : list->parentItem()->childItems()) {
            if (QByteArray(item->metaObject()->className()).startsWith("ListFocusRing"))
                return item->isVisible();
        }
        ADD_FAILURE() << "no ring";
        return false;
    };
    EXPECT_FALSE(rings()) << "at first";
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(rings());
    press(Qt::Key_Down);
    EXPECT_FALSE(rings()) << "the row shows it";
}

TEST_F(Keyboard, WhileTypingNoLetterReachesTheKeyMap)
{
    click(searchField());
    type(u"j"_s);
    press(Qt::Key_Down);

    EXPECT_EQ(focus(), "nothing");
    EXPECT_EQ(store().filterText(), u"j"_s);
}

TEST_F(Keyboard, TypingInTheSearchFieldFiltersAsItGoes)
{
    click(searchField());
    type(u"mob-2"_s);

    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-2"_s}; }));
}

TEST_F(Keyboard, EscapeLeavesTheSearchFieldAndThenClearsIt)
{
    click(searchField());
    type(u"mob"_s);

    press(Qt::Key_Escape);
    EXPECT_EQ(store().filterText(), u"mob"_s);
    EXPECT_TRUE(find(QAccessible::List, u"Mes tickets"_s).state.focused);
    press(Qt::Key_Escape);

    EXPECT_EQ(store().filterText(), QString());
}

TEST_F(Keyboard, ReturnLeavesTheSearchFieldToTheRowsThatItFound)
{
    click(searchField());
    type(u"mob-2"_s);
    press(Qt::Key_Return);
    press(Qt::Key_J);

    EXPECT_EQ(focus(), "MOB-2");
    EXPECT_EQ(store().filterText(), u"mob-2"_s);
}

TEST_F(Keyboard, AClickOnARowTakesTheKeyboardOutOfTheSearchField)
{
    click(searchField());
    type(u"mob"_s);
    click(await(QAccessible::ListItem, u"MOB-2,"_s));
    press(Qt::Key_X);

    EXPECT_EQ(store().filterText(), u"mob"_s);
    EXPECT_EQ(store().checked(), QSet<QString>{u"MOB-2"_s});
}

TEST_F(Keyboard, AClickOnACardTakesTheKeyboardOutOfTheSearchField)
{
    press(Qt::Key_2);
    click(searchField());
    type(u"mob"_s);
    click(await(QAccessible::ListItem, u"MOB-2,"_s));
    press(Qt::Key_X);

    EXPECT_EQ(store().filterText(), u"mob"_s);
    EXPECT_EQ(store().checked(), QSet<QString>{u"MOB-2"_s});
}

TEST_F(Keyboard, ControlFGoesToTheSearchFieldUnlessThePaletteHasTheKeyboard)
{
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(searchField().state.focused);
    press(Qt::Key_Escape);

    press(Qt::Key_K, Qt::ControlModifier);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(searchField().state.focused);
}

TEST_F(Keyboard, TheRowsOfAFoldedGroupAreNotOnThePath)
{
    store().toggleGroup(u"s:todo"_s);
    press(Qt::Key_Down);

    EXPECT_EQ(focus(), "nothing");
}

TEST_F(Keyboard, AClickOnAHeaderFoldsItsGroup)
{
    click(find(QAccessible::Button, u"À faire, 3 tickets"_s));

    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown().isEmpty(); }));
}

TEST_F(Keyboard, TheFocusSurvivesAReload)
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);

    serve({u"MOB-1"_s, u"MOB-2"_s, u"MOB-9"_s});
    reload();

    EXPECT_EQ(focus(), "MOB-2");
}

TEST_F(Keyboard, AFarFocusIsScrolledIntoView)
{
    QStringList many;
    for (int i = 1; i <= 100; ++i)
        many += u"MOB-%1"_s.arg(i);
    serve(many);
    reload();

    press(Qt::Key_Up);

    EXPECT_EQ(focus(), "MOB-100");
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown().contains(u"MOB-100"_s); }));
}

TEST_F(Keyboard, TheFocusedRowIsInViewWhenTheListTakesTheBoardsPlace)
{
    QStringList many;
    for (int i = 1; i <= 100; ++i)
        many += u"MOB-%1"_s.arg(i);
    serve(many);
    reload();
    press(Qt::Key_2);
    press(Qt::Key_Up);
    press(Qt::Key_1);

    ASSERT_EQ(focus(), "MOB-100");
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown().contains(u"MOB-100"_s); }));
}

TEST_F(Keyboard, TheSelectionBarDoesNotHideTheFocusedRow)
{
    QStringList many;
    for (int i = 1; i <= 100; ++i)
        many += u"MOB-%1"_s.arg(i);
    serve(many);
    reload();
    press(Qt::Key_Up);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rowsShown().contains(u"MOB-100"_s); }));
    press(Qt::Key_X);

    const auto bar = await(QAccessible::ToolBar, u"1 sélectionné"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return find(QAccessible::ListItem, u"MOB-100,"_s).box.bottom() <
               window().height() - 20 - bar.box.height();
    }));
}
