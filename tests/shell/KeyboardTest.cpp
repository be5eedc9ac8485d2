#include "app/WindowFixture.h"

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
