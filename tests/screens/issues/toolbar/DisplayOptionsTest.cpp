#include "screens/issues/toolbar/DisplayOptions.h"

#include "app/WindowFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class DisplayOptionsPopover : public WindowFixture
{
protected:
    DisplayOptionsPopover()
    {
        serve({u"MOB-1"_s, u"MOB-2"_s});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    void openPopover()
    {
        click(find(QAccessible::Button, u"Affichage"_s));
        await(QAccessible::Dialog, u"Options d'affichage"_s);
    }
    void choose(const QString &what, const QString &choice)
    {
        click(await(QAccessible::ComboBox, what));
        click(await(QAccessible::MenuItem, choice));
        EXPECT_TRUE(isGone(QAccessible::MenuItem, {}));
    }
};

TEST_F(DisplayOptionsPopover, GroupingAndOrderAreChosenAndKept)
{
    openPopover();
    choose(u"Regrouper par"_s, u"Projet"_s);
    choose(u"Trier par"_s, u"Numéro"_s);

    EXPECT_EQ(store().grouping(), Grouping::Project);
    EXPECT_EQ(store().ordering(), Ordering::Key);
    EXPECT_EQ(Preferences(preferencesPath).text(u"grouping"_s), u"project"_s);
    await(QAccessible::Button, u"App mobile, 2 tickets"_s);
}

TEST_F(DisplayOptionsPopover, OnTheBoardTheGroupingCannotBeChosen)
{
    store().setLayout(LayoutMode::Board);
    openPopover();

    click(find(QAccessible::ComboBox, u"Regrouper par"_s));
    settle();
    EXPECT_TRUE(spokenIn(window(), QAccessible::MenuItem).isEmpty());
    click(find(QAccessible::ComboBox, u"Trier par"_s));
    await(QAccessible::MenuItem, u"Numéro"_s);
}

TEST_F(DisplayOptionsPopover, EachColumnGoesAndComes)
{
    openPopover();
    for (const auto &[name, member] : {std::pair(u"Clé"_s, &DisplayProperties::key),
                                       std::pair(u"Type"_s, &DisplayProperties::type),
                                       std::pair(u"Mis à jour"_s, &DisplayProperties::updated)}) {
        const bool before = store().display().*member;
        click(await(QAccessible::CheckBox, name));
        EXPECT_NE(store().display().*member, before) << name.toStdString();
        click(await(QAccessible::CheckBox, name));
        EXPECT_EQ(store().display().*member, before) << name.toStdString();
    }
}

TEST_F(DisplayOptionsPopover, FinishedIssuesAreSwitchedByKeyboard)
{
    const bool before = store().showCompleted();
    openPopover();
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Tab);
    press(Qt::Key_Space);

    EXPECT_NE(store().showCompleted(), before);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::Dialog, {}));
}

TEST_F(DisplayOptionsPopover, OpenedByKeyboardItBeginsAtItsFirstChoice)
{
    const auto isAt = [&](QAccessible::Role role, const QString &name) {
        const auto found = spokenIn(window(), role, name);
        return !found.isEmpty() && found.first().state.focused;
    };
    for (int i = 0; i < 30 && !isAt(QAccessible::Button, u"Affichage"_s); ++i)
        press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isAt(QAccessible::ComboBox, u"Regrouper par"_s); }));

    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isAt(QAccessible::Button, u"Affichage"_s); }));
}

TEST_F(DisplayOptionsPopover, ASecondPressOnTheButtonClosesIt)
{
    openPopover();
    click(find(QAccessible::Button, u"Affichage"_s));

    EXPECT_TRUE(isGone(QAccessible::Dialog, {}));
}

TEST(ToggledDisplay, OneColumnIsTurnedOverByItsName)
{
    const DisplayProperties display;
    for (const auto &name : {u"key"_s, u"priority"_s, u"type"_s, u"labels"_s, u"assignee"_s,
                             u"dueDate"_s, u"updated"_s}) {
        const auto turned = toggledDisplay(display, name);
        EXPECT_NE(turned, display) << name.toStdString();
        EXPECT_EQ(toggledDisplay(turned, name), display) << name.toStdString();
    }
    EXPECT_EQ(toggledDisplay(display, u"other"_s), display);
}
