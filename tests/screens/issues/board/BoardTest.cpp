#include "app/WindowFixture.h"
#include "screens/issues/DrawnText.h"
#include "screens/issues/board/CardFace.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class Board : public WindowFixture
{
protected:
    Board()
    {
        Preferences preferences(preferencesPath);
        preferences.setText(u"ordering"_s, u"key"_s);
        preferences.setText(u"layout"_s, u"board"_s);
        serve({u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s}, u"À faire"_s);
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    std::string focus() { return store().focusedKey().value_or(u"nothing"_s).toStdString(); }
    int focusedThings()
    {
        int count = 0;
        for (const auto &thing : spokenIn(window(), QAccessible::ListItem))
            count += thing.state.focused;
        return count;
    }
    /// Serves `count` issues, each with a status and thus a column of its own.
    void serveManyColumns(int count)
    {
        IssueList issues;
        for (int i = 1; i <= count; ++i) {
            Issue issue;
            issue.id = issue.key = u"MOB-%1"_s.arg(i);
            issue.summary = u"Résumé de "_s + issue.key;
            issue.status = IssueStatus::guessed(u"Étape %1"_s.arg(i));
            issue.projectKey = u"MOB"_s;
            issues += issue;
        }
        service->issuesCalls.answerWith(issues);
        reload();
    }
    /// The colour of a card's outline, in the middle of its left edge.
    QColor outline(const QString &key)
    {
        const auto box = await(QAccessible::ListItem, key + u',').box;
        return window().grabWindow().pixelColor(box.left(), box.center().y());
    }
    QRectF textBox(const QString &words)
    {
        const auto text = drawnText(window().contentItem(), words);
        EXPECT_TRUE(text) << words.toStdString();
        return text ? text->box() : QRectF();
    }
    bool isInView(const QString &key)
    {
        const auto found = spokenIn(window(), QAccessible::ListItem, key + u',');
        return !found.isEmpty() &&
               QRect(QPoint(244, 56), QPoint(1316, 840)).contains(found.first().box);
    }
};

TEST_F(Board, TheStoredLayoutShowsColumnsWithTheirCards)
{
    find(QAccessible::List, u"À faire, 3 tickets"_s);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return rowsShown() == QStringList{u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s}; }));
    find(QAccessible::ListItem, u"MOB-1, Résumé de MOB-1, À faire, aucune priorité, non assigné"_s);
}

TEST_F(Board, TheDigitsSwitchBetweenListAndBoard)
{
    press(Qt::Key_1);
    EXPECT_EQ(store().layout(), LayoutMode::List);
    find(QAccessible::Button, u"À faire, 3 tickets"_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::List, u"À faire, 3 tickets"_s).isEmpty());

    press(Qt::Key_2);
    EXPECT_EQ(store().layout(), LayoutMode::Board);
    find(QAccessible::List, u"À faire, 3 tickets"_s);
}

TEST_F(Board, TheToolbarSwitchesToo)
{
    click(find(QAccessible::Button, u"Liste"_s));
    EXPECT_EQ(store().layout(), LayoutMode::List);
    click(find(QAccessible::Button, u"Tableau"_s));
    EXPECT_EQ(store().layout(), LayoutMode::Board);
}

TEST_F(Board, TheKeyboardGoesOverToWhatTakesThePlace)
{
    press(Qt::Key_1);
    EXPECT_TRUE(await(QAccessible::List, u"Mes tickets"_s).state.focused);
    press(Qt::Key_2);
    EXPECT_TRUE(await(QAccessible::Grouping, u"Mes tickets"_s).state.focused);
}

TEST_F(Board, WhatCameWhileTheListWasShownStandsOnTheBoardAfterTheSwitch)
{
    press(Qt::Key_1);
    serve({u"MOB-8"_s});
    reload();
    press(Qt::Key_2);

    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-8"_s}; }));
}

TEST_F(Board, TheArrowsWalkTheCardsFromColumnToColumn)
{
    serveManyColumns(3);

    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "MOB-1");
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "MOB-2");
    press(Qt::Key_Up);
    EXPECT_EQ(focus(), "MOB-1");
    EXPECT_TRUE(find(QAccessible::ListItem, u"MOB-1,"_s).state.focused);
    EXPECT_FALSE(find(QAccessible::ListItem, u"MOB-2,"_s).state.focused);
}

TEST_F(Board, ACardFarToTheRightIsScrolledIntoViewAndBack)
{
    serveManyColumns(9);
    ASSERT_FALSE(isInView(u"MOB-9"_s));

    press(Qt::Key_Up);
    ASSERT_EQ(focus(), "MOB-9");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInView(u"MOB-9"_s); }));
    press(Qt::Key_Escape);
    for (int i = 0; i < 8; ++i)
        press(Qt::Key_Up);
    ASSERT_EQ(focus(), "MOB-1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInView(u"MOB-1"_s); }));
}

TEST_F(Board, ACardFarBelowIsScrolledIntoView)
{
    QStringList many;
    for (int i = 1; i <= 60; ++i)
        many += u"MOB-%1"_s.arg(i);
    serve(many);
    reload();

    press(Qt::Key_Up);

    EXPECT_EQ(focus(), "MOB-60");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInView(u"MOB-60"_s); }));
}

TEST_F(Board, OfAColumnOfThreeThousandCardsOnlyThoseInSightAndNearAreMade)
{
    QStringList many;
    for (int i = 1; i <= 3000; ++i)
        many += u"MOB-%1"_s.arg(i);
    serve(many);
    reload();
    await(QAccessible::List, u"À faire, 3000 tickets"_s);
    settle();

    int made = 0;
    QList<QQuickItem *> left{window().contentItem()};
    while (!left.isEmpty()) {
        auto *item = left.takeFirst();
        left += item->childItems();
        made += qobject_cast<CardFace *>(item) != nullptr;
    }
    EXPECT_GE(made, 6);
    EXPECT_LT(made, 30);
}

TEST_F(Board, AClickOnACardFocusesAndOpensIt)
{
    click(find(QAccessible::ListItem, u"MOB-2,"_s));

    EXPECT_EQ(focus(), "MOB-2");
    EXPECT_EQ(store().inspectorKey(), u"MOB-2"_s);
}

TEST_F(Board, XChecksTheFocusedCard)
{
    press(Qt::Key_Down);
    press(Qt::Key_X);

    EXPECT_EQ(store().checked(), QSet<QString>{u"MOB-1"_s});
    EXPECT_TRUE(find(QAccessible::ListItem, u"MOB-1,"_s).state.selected);
}

TEST_F(Board, AColumnWithoutCardsSaysSo)
{
    EXPECT_TRUE(spokenIn(window(), QAccessible::StaticText, u"Déposer ici"_s).isEmpty());
    service->statusesCalls.answerWith(
        {IssueStatus::guessed(u"À faire"_s), IssueStatus::guessed(u"En cours"_s)});
    serve({u"WEB-1"_s});
    store().select(IssueScope::project(u"WEB"_s, ProjectView::All));

    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return spokenIn(window(), QAccessible::StaticText, u"Déposer ici"_s).size() == 1; }));
    find(QAccessible::List, u"En cours, 0 ticket"_s);
}

TEST_F(Board, TheFocusedCardIsInViewWhenTheBoardTakesTheListsPlace)
{
    press(Qt::Key_1);
    serveManyColumns(9);
    store().setFocusedKey(u"MOB-9"_s);
    press(Qt::Key_2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInView(u"MOB-9"_s); }));
}

TEST_F(Board, TheFocusedCardStaysInViewWhenTheInspectorTakesRoomFromTheBoard)
{
    serveManyColumns(4);
    store().setFocusedKey(u"MOB-3"_s);
    settle();
    press(Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto card = spokenIn(window(), QAccessible::ListItem, u"MOB-3,"_s);
        return !card.isEmpty() && card.first().box.right() < 816 && card.first().box.left() > 244;
    }));
}

TEST_F(Board, AFocusedCardThatIsAlsoCheckedHasTheStrongerOutline)
{
    store().setChecked({u"MOB-1"_s, u"MOB-2"_s});
    store().setFocusedKey(u"MOB-1"_s);
    settle();
    const QColor both = outline(u"MOB-1"_s);
    EXPECT_EQ(both, outline(u"MOB-2"_s));

    store().setFocusedKey(u"MOB-3"_s);
    settle();
    EXPECT_GT(both.hsvSaturation(), outline(u"MOB-3"_s).hsvSaturation() + 30);
}

TEST_F(Board, WithoutADueDateThereIsNoBadgeAndTheLabelsStandInItsPlace)
{
    Issue due = issueWithKey(u"MOB-1"_s);
    due.dueDate = QDate(2026, 12, 24);
    due.labels = {u"avec"_s};
    Issue free = issueWithKey(u"MOB-2"_s);
    free.labels = {u"sans"_s};
    serveIssues({due, free});
    reload();
    settle();

    const auto badge = textBox(u"24 déc."_s);
    const auto with = textBox(u"avec"_s);
    const auto without = textBox(u"sans"_s);
    // The text of a date follows its symbol, and that of a label follows its dot.
    EXPECT_EQ(without.left() - 19, badge.left() - 23);
    EXPECT_GT(with.left() - 19, badge.right());
}

TEST_F(Board, OutOfSightItsCardsClaimNoFocus)
{
    press(Qt::Key_Down);
    EXPECT_EQ(focusedThings(), 1);
    press(Qt::Key_1);
    await(QAccessible::Button, u"À faire, 3 tickets"_s);
    settle();
    EXPECT_EQ(focusedThings(), 1);
}
