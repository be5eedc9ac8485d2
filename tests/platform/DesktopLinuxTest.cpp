#include "platform/linux/DesktopLinux.h"

#include "platform/FakePortal.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const auto Appearance = u"org.freedesktop.appearance"_s;
const auto ColorScheme = u"color-scheme"_s;
const auto Gnome = u"org.gnome.desktop.interface"_s;
constexpr uint NoPreference = 0;
constexpr uint Dark = 1;
constexpr uint Light = 2;

class DesktopLinuxTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!bus.isRunning())
            GTEST_SKIP() << "needs dbus-daemon";
        qputenv("GTK_THEME", "Adwaita");
        portal = std::make_unique<FakePortal>(bus.connection(u"portal"_s));
    }
    void TearDown() override { qunsetenv("GTK_THEME"); }

    /// A desktop that has sent its three queries to the portal; it may not have received the responses yet.
    std::unique_ptr<DesktopLinux> askingDesktop()
    {
        auto desktop = std::make_unique<DesktopLinux>(bus.connection(u"client"_s));
        EXPECT_TRUE(QTest::qWaitFor([&] { return portal->reads() == 3; }));
        return desktop;
    }

    PrivateBus bus;
    std::unique_ptr<FakePortal> portal;
};

TEST_F(DesktopLinuxTest, aDarkDesktopIsKnownAndToldOnceThePortalHasAnswered)
{
    portal->set(Appearance, ColorScheme, Dark);
    const DesktopLinux desktop(bus.connection(u"client"_s));
    const QSignalSpy changes(&desktop, &Desktop::appearanceChanged);
    EXPECT_FALSE(desktop.prefersDark()) << "nobody has waited yet";
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.prefersDark(); }));

    EXPECT_EQ(changes.count(), 1);
}

TEST_F(DesktopLinuxTest, changesAreTold)
{
    portal->set(Appearance, ColorScheme, Dark);
    const auto desktop = askingDesktop();
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop->prefersDark(); }));
    portal->change(Appearance, ColorScheme, Light);

    EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop->prefersDark(); }));
}

TEST_F(DesktopLinuxTest, withoutAPreferenceTheThemeDecides)
{
    portal->set(Appearance, ColorScheme, Dark);
    const auto desktop = askingDesktop();
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop->prefersDark(); }));
    portal->change(Appearance, ColorScheme, NoPreference);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop->prefersDark(); }));
    qputenv("GTK_THEME", "Adwaita:dark");

    EXPECT_TRUE(desktop->prefersDark());
}

TEST_F(DesktopLinuxTest, eitherSwitchAsksForLessMotion)
{
    const auto desktop = askingDesktop();
    portal->change(Appearance, u"reduced-motion"_s, 1U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop->prefersReducedMotion(); }));
    portal->change(Appearance, u"reduced-motion"_s, 0U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop->prefersReducedMotion(); }));
    portal->change(Gnome, u"enable-animations"_s, false);

    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop->prefersReducedMotion(); }));
}

TEST_F(DesktopLinuxTest, aValueOfAnotherKindIsNoWish)
{
    const auto desktop = askingDesktop();
    portal->change(Gnome, u"enable-animations"_s, false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop->prefersReducedMotion(); }));
    portal->change(Gnome, u"enable-animations"_s, QString());

    EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop->prefersReducedMotion(); }));
}

TEST_F(DesktopLinuxTest, aDesktopWithoutAPortalAnswersByItsTheme)
{
    portal.reset();
    QDBusConnection::disconnectFromBus(u"portal"_s);
    qputenv("GTK_THEME", "Adwaita:dark");
    const DesktopLinux desktop(bus.connection(u"client"_s));

    EXPECT_TRUE(desktop.prefersDark());
    EXPECT_FALSE(desktop.prefersReducedMotion());
}

TEST(DesktopLinuxThemeTest, theDarkVariantOfAThemeIsToldByItsName)
{
    qputenv("GTK_THEME", "Adwaita:dark");
    EXPECT_TRUE(themePrefersDark());
    qputenv("GTK_THEME", "Yaru-dark");
    EXPECT_TRUE(themePrefersDark());
    qputenv("GTK_THEME", "Adwaita");
    EXPECT_FALSE(themePrefersDark());
    qunsetenv("GTK_THEME");
}

TEST(DesktopLinuxThemeTest, aProgramWithoutWindowsIsNotActive)
{
    const DesktopLinux desktop(QDBusConnection(u"none"_s));

    EXPECT_FALSE(desktop.isApplicationActive());
}

} // namespace
