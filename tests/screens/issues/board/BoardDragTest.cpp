#include "app/WindowFixture.h"
#include "model/JiraError.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTest>

using namespace Qt::StringLiterals;

/// Drags that the window receives as events of the desktop.
class BoardDrag : public WindowFixture
{
protected:
    BoardDrag()
    {
        Preferences preferences(preferencesPath);
        preferences.setText(u"ordering"_s, u"key"_s);
        preferences.setText(u"layout"_s, u"board"_s);
        serveIssues({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s), issueWithKey(u"MOB-3"_s),
                     issueWithKey(u"MOB-4"_s, u"En cours"_s)});
        service->performCalls.answerWith();
        openOnDemo();
        service->transitionsCalls.answerWith(
            {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)},
             {u"12"_s, u"Reprendre"_s, IssueStatus::guessed(u"À faire"_s)}});
        desktop->setPrefersReducedMotion(true);
    }

    QPoint inColumn(const QString &title)
    {
        const auto list = await(QAccessible::List, title);
        return list.box.topLeft() + QPoint(140, 300);
    }
    void dragOver(const QPoint &point)
    {
        QDragEnterEvent enter(point, Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &enter);
        QDragMoveEvent move(point, Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &move);
        isAccepted = move.isAccepted();
    }
    void dropAt(const QPoint &point)
    {
        QDropEvent drop(point, Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &drop);
    }
    void dragTo(const QString &text, const QString &column)
    {
        content.setText(text);
        const QPoint point = inColumn(column);
        dragOver(point);
        dropAt(point);
    }
    QString status(const QString &key) { return (*store().issue(key))->status.name(); }

    QMimeData content;
    bool isAccepted = false;
};

TEST_F(BoardDrag, ACardDroppedOnAColumnTakesItsStatusAtOnce)
{
    service->performCalls.hold();
    dragTo(u"MOB-1"_s, u"En cours"_s);

    EXPECT_EQ(status(u"MOB-1"_s), u"En cours"_s);
    await(QAccessible::List, u"En cours, 2 tickets"_s);
    service->cancelPending();
}

TEST_F(BoardDrag, DroppingACardBackOnItsOwnColumnChangesNothing)
{
    const auto before = await(QAccessible::ListItem, u"MOB-2,"_s).box;
    dragTo(u"MOB-2"_s, u"À faire"_s);

    EXPECT_EQ(status(u"MOB-2"_s), u"À faire"_s);
    EXPECT_EQ(service->performCalls.count(), 0);
    EXPECT_EQ(await(QAccessible::ListItem, u"MOB-2,"_s).box, before);
}

TEST_F(BoardDrag, DraggingAnUncheckedCardWhileOthersAreCheckedMovesOnlyThatCard)
{
    store().setChecked({u"MOB-1"_s, u"MOB-2"_s});
    dragTo(u"MOB-3"_s, u"En cours"_s);

    EXPECT_EQ(status(u"MOB-3"_s), u"En cours"_s);
    EXPECT_EQ(status(u"MOB-1"_s), u"À faire"_s);
    EXPECT_EQ(store().checked(), (QSet<QString>{u"MOB-1"_s, u"MOB-2"_s}));
}

TEST_F(BoardDrag, DraggingACheckedCardMovesAllCheckedWhateverTheirColumns)
{
    store().setChecked({u"MOB-1"_s, u"MOB-3"_s, u"MOB-4"_s});
    dragTo(u"MOB-1"_s, u"En cours"_s);

    for (const auto &key : {u"MOB-1"_s, u"MOB-3"_s, u"MOB-4"_s})
        EXPECT_EQ(status(key), u"En cours"_s) << key.toStdString();
    EXPECT_EQ(status(u"MOB-2"_s), u"À faire"_s);
}

TEST_F(BoardDrag, AColumnLeftEmptyByAMoveSaysSoAtOnce)
{
    service->statusesCalls.answerWith(
        {IssueStatus::guessed(u"À faire"_s), IssueStatus::guessed(u"En cours"_s)});
    serve({u"WEB-1"_s});
    store().select(IssueScope::project(u"WEB"_s, ProjectView::All));
    await(QAccessible::List, u"En cours, 0 ticket"_s);

    dragTo(u"WEB-1"_s, u"En cours"_s);

    await(QAccessible::List, u"À faire, 0 ticket"_s);
    EXPECT_EQ(spokenIn(window(), QAccessible::StaticText, u"Déposer ici"_s).size(), 1);
}

TEST_F(BoardDrag, ARefusedTransitionPutsTheCardBackAndShowsTheToast)
{
    service->performCalls.failWith(JiraError(JiraError::Http{400, u"Le workflow refuse."_s}));
    dragTo(u"MOB-1"_s, u"En cours"_s);

    await(QAccessible::List, u"À faire, 3 tickets"_s);
    EXPECT_EQ(status(u"MOB-1"_s), u"À faire"_s);
    await(QAccessible::AlertMessage, u"Le workflow refuse."_s);
}

TEST_F(BoardDrag, ATextThatIsNoKnownKeyDoesNothing)
{
    dragTo(u"Bonjour"_s, u"En cours"_s);

    EXPECT_EQ(service->transitionsCalls.count(), 0);
    EXPECT_TRUE(store().toasts().isEmpty());
}

TEST_F(BoardDrag, WhatIsNoTextIsNotTaken)
{
    content.setData(u"application/x-velmora"_s, "x");
    dragOver(inColumn(u"En cours"_s));
    EXPECT_FALSE(isAccepted);

    content.setText(u"MOB-1"_s);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&window(), &leave);
    dragOver(inColumn(u"En cours"_s));
    EXPECT_TRUE(isAccepted);
}

TEST_F(BoardDrag, ADropOnTheListDoesNothing)
{
    store().setLayout(LayoutMode::List);
    content.setText(u"MOB-1"_s);
    const auto point = await(QAccessible::ListItem, u"MOB-4,"_s).box.center();
    dragOver(point);
    EXPECT_FALSE(isAccepted);
    dropAt(point);

    EXPECT_EQ(status(u"MOB-1"_s), u"À faire"_s);
}

TEST_F(BoardDrag, TheColumnUnderTheDragIsMarkedUntilItLeaves)
{
    content.setText(u"MOB-1"_s);
    const QPoint point = inColumn(u"En cours"_s);
    const auto ground = [&] { return window().grabWindow().pixelColor(point); };
    const QColor before = ground();

    dragOver(point);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ground() != before; }));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&window(), &leave);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ground() == before; }));
}

TEST_F(BoardDrag, TheColumnUnderTheDragIsFilledWithTheAccentAtTenPercentOnly)
{
    content.setText(u"MOB-1"_s);
    const QPoint point = inColumn(u"En cours"_s);
    dragOver(point);
    settle();

    const QColor ground = window().grabWindow().pixelColor(point);
    EXPECT_NEAR(ground.red(), 0xEF, 1);
    EXPECT_NEAR(ground.green(), 0xF0, 1);
    EXPECT_NEAR(ground.blue(), 0xFA, 1);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&window(), &leave);
}

TEST_F(BoardDrag, AReloadInMidDragLeavesTheDropInPlace)
{
    content.setText(u"MOB-1"_s);
    const QPoint point = inColumn(u"En cours"_s);
    dragOver(point);
    serveIssues({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-9"_s, u"En cours"_s)});
    reload();
    settle();

    dropAt(point);

    EXPECT_EQ(status(u"MOB-1"_s), u"En cours"_s);
}

TEST_F(BoardDrag, AColumnScrollsWhileADragIsNearItsLowerEdge)
{
    QStringList many;
    for (int i = 1; i <= 40; ++i)
        many += u"MOB-%1"_s.arg(i);
    serve(many);
    reload();
    content.setText(u"MOB-1"_s);
    const auto list = await(QAccessible::List, u"À faire"_s);
    ASSERT_TRUE(rowsShown().contains(u"MOB-1"_s));

    dragOver({list.box.center().x(), list.box.bottom() - 10});

    EXPECT_TRUE(QTest::qWaitFor([&] { return !rowsShown().contains(u"MOB-1"_s); }));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&window(), &leave);
}

TEST_F(BoardDrag, TheBoardScrollsWhileADragIsNearItsSide)
{
    IssueList wide;
    for (int i = 1; i <= 9; ++i)
        wide += issueWithKey(u"MOB-%1"_s.arg(i), u"Étape %1"_s.arg(i));
    serveIssues(wide);
    reload();
    const int left = await(QAccessible::List, u"Étape 1,"_s).box.left();
    content.setText(u"MOB-1"_s);

    dragOver({window().width() - 12, 400});

    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto first = spokenIn(window(), QAccessible::List, u"Étape 1,"_s);
        return first.isEmpty() || first.first().box.left() < left - 100;
    }));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&window(), &leave);
}

TEST_F(BoardDrag, ADropGoesToTheColumnThatTheBoardHasScrolledUnderTheRestingDrag)
{
    IssueList wide;
    for (int i = 1; i <= 5; ++i)
        wide += issueWithKey(u"MOB-%1"_s.arg(i), u"Étape %1"_s.arg(i));
    serveIssues(wide);
    reload();
    service->transitionsCalls.answerWith(
        {{u"15"_s, u"Finir"_s, IssueStatus::guessed(u"Étape 5"_s)}});
    content.setText(u"MOB-1"_s);
    const QPoint atTheSide(window().width() - 40, 400);
    dragOver(atTheSide);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const auto last = spokenIn(window(), QAccessible::List, u"Étape 5,"_s);
            return !last.isEmpty() && last.first().box.left() < atTheSide.x() &&
                   last.first().box.right() > atTheSide.x();
        },
        15000));

    dropAt(atTheSide);

    EXPECT_EQ(status(u"MOB-1"_s), u"Étape 5"_s);
}

TEST_F(BoardDrag, ADropBetweenTwoColumnsGoesToTheNearerOne)
{
    content.setText(u"MOB-1"_s);
    // The left edge of the column: that of its cards minus the padding.
    const int edge = await(QAccessible::List, u"En cours"_s).box.left() - 8;
    const QPoint nearTheLeftOne(edge - 9, 400);
    dragOver(nearTheLeftOne);
    dropAt(nearTheLeftOne);
    EXPECT_EQ(status(u"MOB-1"_s), u"À faire"_s);
    EXPECT_EQ(service->transitionsCalls.count(), 0);

    const QPoint nearTheRightOne(edge - 3, 400);
    dragOver(nearTheRightOne);
    dropAt(nearTheRightOne);
    EXPECT_EQ(status(u"MOB-1"_s), u"En cours"_s);
}

TEST_F(BoardDrag, ADropBesideTheColumnsChangesNothing)
{
    content.setText(u"MOB-1"_s);
    const QPoint behind(await(QAccessible::List, u"En cours"_s).box.right() + 8 + 30, 400);
    dragOver(behind);
    dropAt(behind);

    EXPECT_EQ(service->transitionsCalls.count(), 0);
    EXPECT_EQ(status(u"MOB-1"_s), u"À faire"_s);
}
