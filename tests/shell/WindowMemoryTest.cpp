#include "shell/WindowMemory.h"

#include "app/WindowFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QRect screen(0, 0, 1920, 1080);
const QRect second(1920, 0, 1280, 1024);

} // namespace

TEST(FrameOnScreens, AFrameThatFitsStaysWhereItWas)
{
    EXPECT_EQ(frameOnScreens({100, 80, 1320, 840}, {screen, second}), QRect(100, 80, 1320, 840));
    EXPECT_EQ(frameOnScreens({2000, 80, 1000, 840}, {screen, second}), QRect(2000, 80, 1000, 840));
}

TEST(FrameOnScreens, AFrameThatHangsOutIsMovedIn)
{
    EXPECT_EQ(frameOnScreens({1500, 700, 1000, 600}, {screen}), QRect(920, 480, 1000, 600));
    EXPECT_EQ(frameOnScreens({-200, -50, 1000, 600}, {screen}), QRect(0, 0, 1000, 600));
}

TEST(FrameOnScreens, AFrameOfALargerScreenIsCutToTheScreen)
{
    EXPECT_EQ(frameOnScreens({0, 0, 3840, 2160}, {screen}), screen);
}

TEST(FrameOnScreens, AFrameOnAScreenThatIsGoneIsForgotten)
{
    EXPECT_EQ(frameOnScreens({4000, 80, 1000, 840}, {screen}), std::nullopt);
    EXPECT_EQ(frameOnScreens({0, 0, 100, 100}, {}), std::nullopt);
}

TEST(SizeOnScreen, AWindowThatFitsHasItsUsualSize)
{
    EXPECT_EQ(sizeOnScreen({1320, 840}, {1920, 1080}), QSize(1320, 840));
}

TEST(SizeOnScreen, OnASmallerScreenRoomIsLeftForTheTitleBar)
{
    EXPECT_EQ(sizeOnScreen({1320, 840}, {1366, 768}), QSize(1320, 728));
    EXPECT_EQ(sizeOnScreen({1320, 840}, {1280, 720}), QSize(1280, 680));
}

TEST(SizeOnScreen, AScreenThatDoesNotHoldTheProgramIsLeftToTheDesktop)
{
    EXPECT_EQ(sizeOnScreen({1320, 840}, {800, 600}), QSize(1320, 840));
}

class RememberedWindow : public WindowFixture
{
};

TEST_F(RememberedWindow, TheNextStartHasItsSizeItsPlaceAndItsPanes)
{
    serve({u"MOB-1"_s});
    openOnDemo();
    window().setGeometry(20, 30, 700, 590);
    QCoreApplication::processEvents();
    window().close();
    app.reset();

    openOnDemo();

    EXPECT_EQ(window().size(), QSize(700, 590));
    EXPECT_EQ(window().position(), QPoint(20, 30));
}

TEST_F(RememberedWindow, ABrokenRecordOpensTheUsualWindow)
{
    Preferences preferences(preferencesPath);
    preferences.setText(u"window.frame"_s, u"10 x 20"_s);
    preferences.setText(u"window.sidebarWidth"_s, u"wide"_s);
    preferences.setText(u"window.inspectorWidth"_s, u"-5"_s);

    EXPECT_TRUE(WindowMemory(preferences).initialProperties({screen}).isEmpty());
    EXPECT_EQ(WindowMemory(preferences).sidebarWidth(), 240);
    EXPECT_EQ(WindowMemory(preferences).inspectorWidth(), 380);
}
