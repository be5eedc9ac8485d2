#include "app/WindowFixture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSGRendererInterface>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

bool isShown(const QImage &picture, const QColor &color)
{
    const QRgb wanted = color.rgb();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == wanted)
                return true;
        }
    }
    return false;
}

/// The QML singleton that defines the durations of the window's animations.
QObject *motionTokens(const QQuickWindow &window)
{
    QQmlComponent component(qmlEngine(&window));
    component.setData("import QtQml\nimport Velmora.Theme\n"
                      "QtObject { property QtObject motion: Motion }",
                      QUrl(u"qrc:/motion.qml"_s));
    const std::unique_ptr<QObject> holder(component.create());
    return holder ? holder->property("motion").value<QObject *>() : nullptr;
}

} // namespace

class Phases : public WindowFixture
{
};

TEST_F(Phases, WithNothingStoredTheFirstScreenOffersTheDemo)
{
    openSignedOut();

    find(QAccessible::Heading, u"Jira au bout des doigts"_s);
    find(QAccessible::Button, u"Explorer en mode démo"_s);
}

TEST_F(Phases, ReturnOnTheDemoButtonEntersTheDemo)
{
    openSignedOut();
    serve({u"MOB-1"_s});

    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Return);

    EXPECT_EQ(store().phase(), AppStore::Phase::Ready);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-1"_s}; }));
}

TEST_F(Phases, TheDemoButtonWorksByMouse)
{
    openSignedOut();
    serve({});

    click(find(QAccessible::Button, u"Explorer en mode démo"_s));

    EXPECT_EQ(store().phase(), AppStore::Phase::Ready);
}

TEST_F(Phases, AStoredDemoOpensOnItsList)
{
    serve({u"MOB-1"_s, u"MOB-2"_s});
    openOnDemo();

    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown().size() == 2; }));
}

TEST_F(Phases, SigningOutComesBackToTheFirstScreen)
{
    serve({u"MOB-1"_s});
    openOnDemo();

    store().signOut();

    find(QAccessible::Button, u"Explorer en mode démo"_s);
    EXPECT_TRUE(rowsShown().isEmpty());
}

TEST_F(Phases, TheSignOutEntryOfTheWorkspaceMenuLeavesTheDemo)
{
    serve({});
    openOnDemo();

    click(find(QAccessible::Button, u"Espace exemple"_s));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return !spokenIn(window(), QAccessible::MenuItem, u"Quitter"_s).isEmpty(); }));
    click(find(QAccessible::MenuItem, u"Quitter le mode démo"_s));

    EXPECT_EQ(store().phase(), AppStore::Phase::SignedOut);
}

TEST_F(Phases, ASecondClickClosesTheWorkspaceMenu)
{
    serve({});
    openOnDemo();

    click(find(QAccessible::Button, u"Espace exemple"_s));
    await(QAccessible::MenuItem, u"Quitter"_s);
    click(find(QAccessible::Button, u"Espace exemple"_s));

    EXPECT_TRUE(isGone(QAccessible::MenuItem, {}));
}

TEST_F(Phases, TheDesktopsDarkAppearanceIsFollowedLive)
{
    serve({});
    openOnDemo();
    const QColor light = window().color();

    desktop->setPrefersDark(true);

    EXPECT_EQ(light, QColor(0xFF, 0xFF, 0xFF));
    EXPECT_EQ(window().color(), QColor(0x14, 0x14, 0x17));
}

TEST_F(Phases, TheAccentThatTheUserChoosesIsShownAtOnce)
{
    serve({u"MOB-1"_s}, u"Terminé"_s);
    openOnDemo();
    settle();
    const auto has = [this](const QColor &color) { return isShown(window().grabWindow(), color); };
    const QColor indigo(94, 106, 210);
    const QColor orange = QColor::fromRgbF(0.95F, 0.5F, 0.16F);
    EXPECT_TRUE(has(indigo));
    EXPECT_FALSE(has(orange));

    store().setAccentChoice(AccentChoice::Orange);
    settle();

    EXPECT_TRUE(has(orange));
    EXPECT_FALSE(has(indigo));
}

TEST_F(Phases, TheDesktopsWishForLessMotionIsFollowedLive)
{
    serve({});
    openOnDemo();
    auto *motion = motionTokens(window());
    ASSERT_NE(motion, nullptr);
    const auto duration = [motion] { return motion->property("stateDuration").toInt(); };
    EXPECT_EQ(duration(), 570);

    desktop->setPrefersReducedMotion(true);
    EXPECT_EQ(duration(), 0);

    desktop->setPrefersReducedMotion(false);
    EXPECT_EQ(duration(), 570);
}

TEST_F(Phases, TheProcessorsRendererScalesNoShapes)
{
    serve({});
    openOnDemo();
    ASSERT_EQ(window().rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
    EXPECT_DOUBLE_EQ(motionTokens(window())->property("pressScale").toDouble(), 1);
}

TEST_F(Phases, AChosenAppearanceStandsAgainstTheDesktop)
{
    Preferences(preferencesPath).setText(u"appearance"_s, u"light"_s);
    serve({});
    openOnDemo();

    desktop->setPrefersDark(true);

    EXPECT_EQ(window().color(), QColor(0xFF, 0xFF, 0xFF));
}
