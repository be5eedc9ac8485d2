#include "app/WindowFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class Toasts : public WindowFixture
{
protected:
    Toasts()
    {
        serve({u"MOB-1"_s});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    QList<Spoken> shown() { return spokenIn(window(), QAccessible::Notification, u"Apparence"_s); }
    /// The distance from the lower edge of the lowest toast to that of the window.
    int gap()
    {
        return shown().isEmpty() ? -1 : window().height() - shown().constLast().box.bottom() - 1;
    }
};

TEST_F(Toasts, AClickOnAToastRemovesItAtOnce)
{
    store().cycleAppearance();
    ASSERT_TRUE(QTest::qWaitFor([&] { return gap() == 24; }));

    click(shown().constFirst());

    EXPECT_TRUE(store().toasts().isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown().isEmpty(); }));
}

TEST_F(Toasts, WithIssuesCheckedTheyStandAboveTheSelectionBar)
{
    store().cycleAppearance();
    ASSERT_TRUE(QTest::qWaitFor([&] { return gap() == 24; }));

    store().setChecked({u"MOB-1"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return gap() == 84; }));
    store().setChecked({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return gap() == 24; }));
}

TEST_F(Toasts, ThePressActionOfAScreenReaderDismissesThem)
{
    store().cycleAppearance();
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown().size() == 1; }));

    pressAction(window(), QAccessible::Notification, u"Apparence"_s);

    EXPECT_TRUE(store().toasts().isEmpty());
}

TEST_F(Toasts, TheyLeaveByThemselves)
{
    store().cycleAppearance();
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown().size() == 1; }));

    clock->advance(std::chrono::milliseconds(2400));

    EXPECT_TRUE(QTest::qWaitFor([&] { return shown().isEmpty(); }));
}
