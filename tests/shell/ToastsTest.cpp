#include "app/WindowFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// What screen readers are told to have appeared, with its role.
QList<std::pair<QAccessible::Role, QString>> announced;

void keepShown(QAccessibleEvent *event)
{
    auto *shown = event->type() == QAccessible::ObjectShow ? event->accessibleInterface() : nullptr;
    if (shown)
        announced.append({shown->role(), shown->text(QAccessible::Name)});
}

} // namespace

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

TEST_F(Toasts, ScreenReadersAreToldOfThemAndErrorsAreAlerts)
{
    announced.clear();
    QAccessible::setActive(true);
    const auto before = QAccessible::installUpdateHandler(keepShown);
    store().toast(u"Clé copié"_s, u"doc.on.doc.fill"_s);
    store().toast(u"Jira a refusé"_s, u"exclamationmark.triangle.fill"_s, ToastKind::Error);
    settle();
    QAccessible::installUpdateHandler(before);

    EXPECT_TRUE(announced.contains({QAccessible::Notification, u"Clé copié"_s}));
    EXPECT_TRUE(announced.contains({QAccessible::AlertMessage, u"Jira a refusé"_s}));
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
