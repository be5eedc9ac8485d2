#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <random>

using namespace Qt::StringLiterals;

/// Sixty issues to do and sixty in progress, in a list or on a board that shows only a part of them.
class KeepingPlace : public WindowFixture
{
protected:
    void openWith(const QString &layout)
    {
        IssueList issues;
        for (int i = 1; i <= 120; ++i)
            issues += issueWithKey(u"MOB-%1"_s.arg(i), i <= 60 ? u"En cours"_s : u"À faire"_s);
        openWith(layout, issues);
    }
    void openWith(const QString &layout, const IssueList &issues)
    {
        Preferences preferences(preferencesPath);
        preferences.setText(u"ordering"_s, u"key"_s);
        preferences.setText(u"layout"_s, layout);
        serveIssues(issues);
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        service->performCalls.answerWith();
        service->transitionsCalls.answerWith(
            {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)},
             {u"12"_s, u"Reprendre"_s, IssueStatus::guessed(u"À faire"_s)}});
        settle();
    }
    QQuickItem *listView() { return itemNamed(QAccessible::List, u"Mes tickets"_s); }
    bool isInView(const QString &key)
    {
        const auto found = spokenIn(window(), QAccessible::ListItem, key + u',');
        return found.size() == 1 && QRect(244, 56, 1076, 784).contains(found.first().box);
    }
    void wheel(QPointF at, int delta, Qt::KeyboardModifiers modifiers = {})
    {
        QWheelEvent event(at, window().mapToGlobal(at), {}, {0, -delta}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window(), &event);
    }
    static double y(const QQuickItem *view) { return view->property("contentY").toDouble(); }

private:
    QQuickItem *itemNamed(QAccessible::Role role, const QString &name)
    {
        QList<QQuickItem *> left{window().contentItem()};
        while (!left.isEmpty()) {
            auto *item = left.takeFirst();
            left += item->childItems();
            auto *spoken = item->inherits("QQuickListView") && item->isVisible()
                               ? QAccessible::queryAccessibleInterface(item)
                               : nullptr;
            if (spoken && spoken->role() == role && spoken->text(QAccessible::Name).contains(name))
                return item;
        }
        return nullptr;
    }
};

TEST_F(KeepingPlace, TheListFollowsTheFocusedRowToItsNewGroup)
{
    openWith(u"list"_s);
    press(Qt::Key_J);
    press(Qt::Key_J);
    EXPECT_TRUE(isInView(u"MOB-2"_s));
    store().setStatus(IssueStatus::guessed(u"À faire"_s), {u"MOB-2"_s});

    EXPECT_TRUE(QTest::qWaitFor([&] { return y(listView()) > 1000 && isInView(u"MOB-2"_s); }));
}

/// The argument tells whether the desktop prefers reduced motion.
class FarFocus : public KeepingPlace, public ::testing::WithParamInterface<bool>
{
protected:
    /// Waits until the list no longer moves and shows the row. While it moves, the row can pass through the view.
    bool restsWith(const QString &key)
    {
        constexpr int checks = 20;
        int still = 0;
        double last = -1;
        return QTest::qWaitFor([&] {
            const double now = std::exchange(last, y(listView()));
            still = now == last && isInView(key) ? still + 1 : 0;
            return still >= checks;
        });
    }
};

TEST_P(FarFocus, TheListShowsEachRowThatGetsTheFocus)
{
    IssueList issues;
    for (int i = 1; i <= 900; ++i)
        issues += issueWithKey(u"MOB-%1"_s.arg(i), u"État %1"_s.arg(i % 45));
    openWith(u"list"_s, issues);
    desktop->setPrefersReducedMotion(GetParam());
    std::mt19937 random(7);
    std::uniform_int_distribution<int> number(1, 900);
    for (int turn = 0; turn < 10; ++turn) {
        const auto key = u"MOB-%1"_s.arg(number(random));
        store().setFocusedKey(key);
        EXPECT_TRUE(restsWith(key)) << qPrintable(key);
    }
}

INSTANTIATE_TEST_SUITE_P(Motion, FarFocus, ::testing::Bool());

TEST_F(KeepingPlace, ThePlaceOfAFarRowIsKnownWithoutScrollingThere)
{
    openWith(u"list"_s);
    desktop->setPrefersReducedMotion(false);
    const QSignalSpy scrolls(listView(), SIGNAL(contentYChanged()));
    store().setFocusedKey(u"MOB-119"_s);
    EXPECT_EQ(scrolls.count(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInView(u"MOB-119"_s); }));
}

TEST_F(KeepingPlace, TheListStaysIfTheUserHasScrolledAwayFromTheFocusedRow)
{
    openWith(u"list"_s);
    press(Qt::Key_J);
    wheel({700, 400}, 120 * 20);
    settle();
    const double here = y(listView());
    ASSERT_GT(here, 1000);
    store().setStatus(IssueStatus::guessed(u"À faire"_s), {u"MOB-1"_s});
    settle();
    settle();

    EXPECT_NEAR(y(listView()), here, 40);
}

TEST_F(KeepingPlace, TheBoardFollowsTheFocusedCardToItsNewColumn)
{
    openWith(u"board"_s);
    store().setFocusedKey(u"MOB-119"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInView(u"MOB-119"_s); }));
    store().setStatus(IssueStatus::guessed(u"En cours"_s), {u"MOB-119"_s});

    EXPECT_TRUE(QTest::qWaitFor([&] { return store().board()->columnOfKey(u"MOB-119"_s) == 1; }));
    settle();
    settle();
    EXPECT_TRUE(isInView(u"MOB-119"_s));
}

TEST_F(KeepingPlace, AWheelWhileAltIsHeldDoesNotOpenTheMenuBar)
{
    openWith(u"list"_s);
    QTest::keyPress(&window(), Qt::Key_Alt, Qt::AltModifier);
    wheel({700, 400}, 120, Qt::AltModifier);
    QTest::keyRelease(&window(), Qt::Key_Alt);
    settle();

    EXPECT_TRUE(spokenIn(window(), QAccessible::MenuBar).isEmpty());
}

TEST_F(KeepingPlace, NeitherFlickByMouseNorQuickNotchesThrowTheListAway)
{
    openWith(u"list"_s);
    for (int notch = 0; notch < 5; ++notch)
        wheel({700, 400}, 120);
    EXPECT_DOUBLE_EQ(y(listView()), 5 * 72);

    QTest::mousePress(&window(), Qt::LeftButton, {}, {700, 70});
    for (int place = 90; place < 600; place += 20)
        QTest::mouseMove(&window(), {700, place});
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, {700, 600});
    settle();
    EXPECT_DOUBLE_EQ(y(listView()), 5 * 72);
}
