#include "app/WindowFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

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

TEST_F(Phases, TheDesktopsDarkAppearanceIsFollowedLive)
{
    serve({});
    openOnDemo();
    const QColor light = window().color();

    desktop->setPrefersDark(true);

    EXPECT_EQ(light, QColor(0xFF, 0xFF, 0xFF));
    EXPECT_EQ(window().color(), QColor(0x14, 0x14, 0x17));
}

TEST_F(Phases, AChosenAppearanceStandsAgainstTheDesktop)
{
    Preferences(preferencesPath).setText(u"appearance"_s, u"light"_s);
    serve({});
    openOnDemo();

    desktop->setPrefersDark(true);

    EXPECT_EQ(window().color(), QColor(0xFF, 0xFF, 0xFF));
}
