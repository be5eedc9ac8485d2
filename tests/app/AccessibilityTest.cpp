#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

/// What a screen reader finds in each state of the main window.
class Accessibility : public WindowFixture
{
protected:
    Accessibility()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        Issue full = issueWithKey(u"MOB-1"_s);
        full.labels = {u"auth"_s, u"ios"_s, u"web"_s};
        full.dueDate = QDate(2026, 11, 3);
        full.assignee = JiraUser{u"u1"_s, u"Noam Talvère"_s, {}, {}};
        serveIssues({full, issueWithKey(u"MOB-2"_s), issueWithKey(u"MOB-3"_s, u"En cours"_s)});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
    }

    /// Moves the focus from the issues through the search field to the toolbar.
    void backToAButton()
    {
        press(Qt::Key_Backtab);
        press(Qt::Key_Backtab);
        settle();
    }

    qsizetype spokenFocusedIssues()
    {
        const auto issues = spokenIn(window(), QAccessible::ListItem, u"Résumé"_s);
        return std::ranges::count_if(issues, [](const Spoken &each) { return each.state.focused; });
    }

    void expectNothingNameless(const char *state)
    {
        settle();
        int focusable = 0;
        for (const auto &thing : spokenIn(window())) {
            if (!thing.state.focusable)
                continue;
            ++focusable;
            EXPECT_FALSE(thing.name.isEmpty()) << state << ": role " << thing.role << " at "
                                               << thing.box.x() << ", " << thing.box.y();
            EXPECT_NE(thing.role, QAccessible::NoRole) << state << ": " << thing.name.toStdString();
            EXPECT_NE(thing.role, QAccessible::Client) << state << ": " << thing.name.toStdString();
        }
        EXPECT_GT(focusable, 5) << state;
    }
};

TEST_F(Accessibility, NothingThatTakesTheFocusIsNamelessInAnyState)
{
    expectNothingNameless("list");
    store().setChecked({u"MOB-1"_s});
    expectNothingNameless("checked");
    store().setFilters({.statuses = {u"todo"_s}});
    expectNothingNameless("filtered");
    store().setFilters({});
    store().setInspectorKey(u"MOB-1"_s);
    expectNothingNameless("inspector");
    store().setLayout(LayoutMode::Board);
    expectNothingNameless("board");
    store().setInspectorKey(std::nullopt);
    store().setFilterText(u"zzz"_s);
    expectNothingNameless("empty");
    store().setFilterText({});
    store().select(IssueScope::activity({ActivityRange::Week, 0, false}));
    expectNothingNameless("recap");
}

TEST_F(Accessibility, NothingThatTakesTheFocusIsNamelessInMenusAndPopovers)
{
    click(find(QAccessible::Button, u"Filtrer"_s));
    await(QAccessible::MenuItem, u"Statut"_s);
    expectNothingNameless("filter menu");
    press(Qt::Key_Escape);
    ASSERT_TRUE(isGone(QAccessible::MenuItem, {}));
    click(find(QAccessible::Button, u"Affichage"_s));
    await(QAccessible::Dialog, u"Options d'affichage"_s);
    expectNothingNameless("display options");
    press(Qt::Key_Escape);
    ASSERT_TRUE(isGone(QAccessible::Dialog, {}));
    rightClick(await(QAccessible::ListItem, u"MOB-1,"_s));
    await(QAccessible::MenuItem, u"Copier la clé"_s);
    expectNothingNameless("context menu");
}

TEST_F(Accessibility, RowsAndCardsSpeakOneSentenceWithTheirPlaceInTheirGroup)
{
    const QString first =
        u"MOB-1, Résumé de MOB-1, À faire, aucune priorité, assigné à Noam Talvère, "
        "étiquettes auth, ios et web, échéance le 3 novembre, 1 sur 2"_s;
    const QString second =
        u"MOB-2, Résumé de MOB-2, À faire, aucune priorité, non assigné, 2 sur 2"_s;
    find(QAccessible::ListItem, first);
    find(QAccessible::ListItem, second);

    store().setLayout(LayoutMode::Board);
    settle();
    find(QAccessible::ListItem, first);
    find(QAccessible::ListItem, second);
}

TEST_F(Accessibility, GroupsAreAnnouncedWithTheirCountAndState)
{
    find(QAccessible::Button, u"À faire, 2 tickets"_s);
    store().toggleGroup(u"s:todo"_s);
    settle();
    find(QAccessible::Button, u"À faire, 2 tickets, replié"_s);
}

TEST_F(Accessibility, TheFocusedRowIsTheOnlyFocusedOneAndTheCheckedOnesAreSelected)
{
    press(Qt::Key_Down);
    press(Qt::Key_Down, Qt::ShiftModifier);
    settle();
    int focused = 0;
    int selected = 0;
    for (const auto &row : spokenIn(window(), QAccessible::ListItem, u"Résumé"_s)) {
        focused += row.state.focused ? 1 : 0;
        selected += row.state.selected ? 1 : 0;
    }
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(selected, 2);
}

TEST_F(Accessibility, WhileAButtonHasTheKeyboardItAloneIsToldAsFocused)
{
    press(Qt::Key_Down);
    for (const LayoutMode layout : {LayoutMode::List, LayoutMode::Board}) {
        store().setLayout(layout);
        settle();
        backToAButton();
        QStringList focused;
        for (const auto &thing : spokenIn(window())) {
            if (thing.state.focused)
                focused += thing.name;
        }
        auto *holder = QAccessible::queryAccessibleInterface(window().activeFocusItem());
        ASSERT_TRUE(holder);
        EXPECT_EQ(holder->role(), QAccessible::Button);
        EXPECT_EQ(focused, QStringList{holder->text(QAccessible::Name)});
        press(Qt::Key_Down);
        settle();
        EXPECT_EQ(spokenFocusedIssues(), 1) << "whoever walks on is told of the issue again";
    }
}

TEST_F(Accessibility, WhoeverWalksTheIssuesFromAButtonHearsTheRow)
{
    backToAButton();
    press(Qt::Key_J);
    settle();
    EXPECT_TRUE(find(QAccessible::ListItem, u"MOB-3,"_s).state.focused);
    press(Qt::Key_Space);
    EXPECT_TRUE(store().showInspector()) << "and the key presses no button";
}

TEST_F(Accessibility, AStepBeyondTheLastIssueLeavesTheButtonToo)
{
    const QString last = store().flatVisibleKeys().constLast();
    backToAButton();
    store().setFocusedKey(last);
    press(Qt::Key_J);
    settle();
    EXPECT_TRUE(find(QAccessible::ListItem, last + u',').state.focused);
    press(Qt::Key_Space);
    EXPECT_TRUE(store().showInspector());
}

TEST_F(Accessibility, TheSwitchOfTheLayoutsIsNamed)
{
    find(QAccessible::Grouping, u"Disposition"_s);
}

TEST_F(Accessibility, AReaderThatStartsLaterHearsWhichLayoutIsChosen)
{
    QAccessible::setActive(false);
    QAccessible::setActive(true);
    settle();
    EXPECT_TRUE(find(QAccessible::Button, u"Liste"_s).state.checked);
    EXPECT_FALSE(find(QAccessible::Button, u"Tableau"_s).state.checked);
    store().setLayout(LayoutMode::Board);
    settle();
    EXPECT_TRUE(find(QAccessible::Button, u"Tableau"_s).state.checked);
}

TEST_F(Accessibility, TheCellsOfRowsAndCardsExistWhileAReaderIsPresent)
{
    for (const auto layout : {LayoutMode::List, LayoutMode::Board}) {
        store().setLayout(layout);
        for (const bool isPresent : {false, true}) {
            QAccessible::setActive(isPresent);
            settle();
            const auto cells = spokenIn(window(), QAccessible::Button, u"Assigné : Noam Talvère"_s);
            EXPECT_EQ(!cells.isEmpty(), isPresent);
        }
    }
}

TEST_F(Accessibility, TheFocusGoesFromLeftToRightAndFromTopToBottom)
{
    // The order is the sidebar, the toolbar, the issues. Each stop is to the right of the previous one or below it.
    QList<QRectF> stops;
    for (int i = 0; i < 12; ++i) {
        press(Qt::Key_Tab);
        const auto *item = window().activeFocusItem();
        ASSERT_NE(item, nullptr);
        stops += item->mapRectToScene(item->boundingRect());
    }
    int backwards = 0;
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const bool isForward =
            stops[i].left() >= stops[i - 1].left() || stops[i].top() >= stops[i - 1].bottom();
        backwards += isForward ? 0 : 1;
    }
    EXPECT_LE(backwards, 1) << "once round the window at most";
}
