#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class FiltersInTheWindow : public WindowFixture
{
protected:
    FiltersInTheWindow()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        Issue labelled = issueWithKey(u"MOB-1"_s);
        labelled.labels = {u"auth"_s};
        serveIssues({labelled, issueWithKey(u"MOB-2"_s), issueWithKey(u"MOB-3"_s, u"En cours"_s)});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    void openMenu() { click(find(QAccessible::Button, u"Filtrer"_s)); }
    void openSubmenu(const QString &title)
    {
        openMenu();
        click(await(QAccessible::MenuItem, title));
    }
    /// Opens the submenu and clicks the choice in it.
    void choose(const QString &submenu, const QString &choice)
    {
        openSubmenu(submenu);
        click(await(QAccessible::MenuItem, choice));
        EXPECT_TRUE(isGone(QAccessible::MenuItem, {}));
    }
    bool shows(const QStringList &keys)
    {
        return QTest::qWaitFor([&] { return rowsShown() == keys; });
    }
};

TEST_F(FiltersInTheWindow, AChoiceOfTheMenuNarrowsTheListAndShowsAChip)
{
    choose(u"Statut"_s, u"En cours"_s);

    EXPECT_TRUE(shows({u"MOB-3"_s}));
    await(QAccessible::Grouping, u"Statut : En cours"_s);
}

TEST_F(FiltersInTheWindow, ASecondClickOnTheButtonClosesTheMenu)
{
    openMenu();
    await(QAccessible::MenuItem, u"Statut"_s);
    openMenu();
    EXPECT_TRUE(isGone(QAccessible::MenuItem, {}));
}

TEST_F(FiltersInTheWindow, TheMenuIsWorkedByKeysAlone)
{
    auto *button = window().activeFocusItem();
    for (int i = 0; i < 30; ++i) {
        button = window().activeFocusItem();
        if (button && button->property("accessibleName").toString() == u"Filtrer")
            break;
        press(Qt::Key_Tab);
    }
    press(Qt::Key_Space);
    await(QAccessible::MenuItem, u"Statut"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    await(QAccessible::MenuItem, u"À faire"_s);
    press(Qt::Key_Return);

    EXPECT_EQ(store().filters().statuses.size(), 1);
    EXPECT_EQ(store().focusedKey(), std::nullopt) << "the keys were the menu's";
    EXPECT_TRUE(isGone(QAccessible::MenuItem, {}));
    EXPECT_EQ(window().activeFocusItem(), button);
}

TEST_F(FiltersInTheWindow, EscapeClosesTheMenuAndLeavesTheSelectionAlone)
{
    store().setChecked({u"MOB-1"_s});
    openMenu();
    await(QAccessible::MenuItem, u"Statut"_s);

    press(Qt::Key_Escape);

    EXPECT_TRUE(isGone(QAccessible::MenuItem, {}));
    EXPECT_EQ(store().checkedCount(), 1);
}

TEST_F(FiltersInTheWindow, InAListWithNoLabelsTheLabelSubmenuIsMissing)
{
    openMenu();
    await(QAccessible::MenuItem, u"Étiquette"_s);
    press(Qt::Key_Escape);
    ASSERT_TRUE(isGone(QAccessible::MenuItem, {}));

    serve({u"MOB-2"_s});
    reload();
    openMenu();

    await(QAccessible::MenuItem, u"Assigné"_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::MenuItem, u"Étiquette"_s).isEmpty());
}

TEST_F(FiltersInTheWindow, AChipsCrossLiftsItsFilterAlone)
{
    store().setFilters({.statuses = {u"todo"_s}, .labels = {u"auth"_s}});
    ASSERT_TRUE(shows({u"MOB-1"_s}));

    click(await(QAccessible::Button, u"Retirer le filtre Étiquette"_s));

    EXPECT_TRUE(shows({u"MOB-1"_s, u"MOB-2"_s}));
    EXPECT_EQ(store().filters().statuses, QSet<QString>{u"todo"_s});
}

TEST_F(FiltersInTheWindow, ClearingTheLastFilterByItsChipHidesTheBar)
{
    store().setFilters({.statuses = {u"inprogress"_s}});
    const int below = await(QAccessible::ListItem, u"MOB-3,"_s).box.top();

    click(await(QAccessible::Button, u"Retirer le filtre"_s));

    EXPECT_TRUE(isGone(QAccessible::Grouping, u"Filtres actifs"_s));
    EXPECT_LT(await(QAccessible::ListItem, u"MOB-3,"_s).box.top(), below);
}

TEST_F(FiltersInTheWindow, ClearAllLiftsAllOfThem)
{
    store().setFilters({.statuses = {u"inprogress"_s}, .priorities = {PriorityLevel::None}});
    click(await(QAccessible::Button, u"Tout effacer"_s));

    EXPECT_TRUE(store().filters().isEmpty());
    EXPECT_TRUE(shows({u"MOB-3"_s, u"MOB-1"_s, u"MOB-2"_s}));
}

TEST_F(FiltersInTheWindow, TheMenuEndsWithTheWayBackWhileAFilterIsActive)
{
    openMenu();
    await(QAccessible::MenuItem, u"Statut"_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::MenuItem, u"Effacer"_s).isEmpty());
    press(Qt::Key_Escape);
    ASSERT_TRUE(isGone(QAccessible::MenuItem, {}));

    store().setFilters({.statuses = {u"todo"_s}});
    openMenu();
    click(await(QAccessible::MenuItem, u"Effacer les filtres"_s));

    EXPECT_TRUE(store().filters().isEmpty());
}

TEST_F(FiltersInTheWindow, AReloadWhileTheMenuIsOpenLeavesItOpen)
{
    openSubmenu(u"Statut"_s);
    await(QAccessible::MenuItem, u"En cours"_s);

    serve({u"MOB-7"_s});
    reload();

    click(await(QAccessible::MenuItem, u"En cours"_s));
    EXPECT_EQ(store().filters().statuses, QSet<QString>{u"inprogress"_s});
    EXPECT_TRUE(shows({}));
    await(QAccessible::Grouping, u"Statut : 1"_s);
}

TEST_F(FiltersInTheWindow, AReloadWhileTypingInTheSearchFieldKeepsTextAndFocus)
{
    click(find(QAccessible::EditableText, u"Filtrer"_s));
    type(u"mob-"_s);
    auto *field = window().activeFocusItem();

    serve({u"MOB-2"_s, u"MOB-20"_s});
    reload();
    type(u"2"_s);

    EXPECT_EQ(window().activeFocusItem(), field);
    EXPECT_EQ(store().filterText(), u"mob-2"_s);
    EXPECT_TRUE(shows({u"MOB-2"_s, u"MOB-20"_s}));
}

TEST_F(FiltersInTheWindow, TypingPastAnEmptyResultAndBackKeepsTheSearchField)
{
    click(find(QAccessible::EditableText, u"Filtrer"_s));
    type(u"mob-3x"_s);
    await(QAccessible::StaticText, u"Aucun ticket ne correspond"_s);

    press(Qt::Key_Backspace);

    EXPECT_TRUE(shows({u"MOB-3"_s}));
    type(u"x"_s);
    EXPECT_EQ(store().filterText(), u"mob-3x"_s);
}

TEST_F(FiltersInTheWindow, TheChipsStayUntilTheirBarHasClosed)
{
    store().setFilters({.statuses = {u"inprogress"_s}});
    await(QAccessible::Grouping, u"Statut : En cours"_s);
    desktop->setPrefersReducedMotion(false);
    settle();

    store().setFilters({});

    EXPECT_EQ(spokenIn(window(), QAccessible::Grouping, u"Statut : En cours"_s).size(), 1);
    EXPECT_TRUE(isGone(QAccessible::Grouping, u"Statut : En cours"_s));
}
