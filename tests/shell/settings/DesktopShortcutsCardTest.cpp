#include "shell/settings/SettingsFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class DesktopShortcutsCard : public SettingsFixture
{
protected:
    void openShortcuts()
    {
        choose(u"shortcuts"_s);
        openOnDemo();
        showSettings();
    }
};

TEST_F(DesktopShortcutsCard, ADesktopWithoutShortcutsHasNoButtonAndNoCard)
{
    openShortcuts();
    here(QAccessible::ListItem, u"Palette de commandes : Ctrl+K"_s);
    EXPECT_FALSE(isHere(QAccessible::Button, u"Raccourcis du bureau"_s));
    EXPECT_FALSE(isHere(QAccessible::Heading, u"Raccourcis du bureau"_s));
}

TEST_F(DesktopShortcutsCard, TheButtonAppearsAndGoesWithThePortal)
{
    openShortcuts();
    shortcuts->setIsPresent(true);
    here(QAccessible::Button, u"Raccourcis du bureau…"_s);
    shortcuts->setIsPresent(false);
    EXPECT_TRUE(isGoneHere(QAccessible::Button, u"Raccourcis du bureau…"_s));
}

TEST_F(DesktopShortcutsCard, OnlyAPressOpensTheDesktopsDialog)
{
    openShortcuts();
    shortcuts->setIsPresent(true);
    const Spoken button = here(QAccessible::Button, u"Raccourcis du bureau…"_s);
    EXPECT_EQ(shortcuts->choices, 0);
    QTest::mouseClick(&settings(), Qt::LeftButton, {}, button.box.center());
    EXPECT_EQ(shortcuts->choices, 1);
}

TEST_F(DesktopShortcutsCard, TheButtonIsReachedAndPressedByKeyboard)
{
    openShortcuts();
    shortcuts->setIsPresent(true);
    pressHere(Qt::Key_End);
    ASSERT_TRUE(tabTo(QAccessible::Button, u"Raccourcis du bureau…"_s));
    settleHere();
    const QRect button = here(QAccessible::Button, u"Raccourcis du bureau…"_s).box;
    EXPECT_TRUE(QRect(0, 76, 600, 484).contains(button)) << button.top();
    pressHere(Qt::Key_Space);
    EXPECT_EQ(shortcuts->choices, 1);
}

TEST_F(DesktopShortcutsCard, TheKeyboardStaysOnThePageWhenThePortalGoes)
{
    openShortcuts();
    shortcuts->setIsPresent(true);
    ASSERT_TRUE(tabTo(QAccessible::Button, u"Raccourcis du bureau…"_s));
    shortcuts->setIsPresent(false);
    EXPECT_TRUE(isGoneHere(QAccessible::Button, u"Raccourcis du bureau…"_s));
    EXPECT_EQ(focusedHere(), u"Raccourcis"_s);
}

TEST_F(DesktopShortcutsCard, TheKeysThatTheDesktopTellsAreShown)
{
    openShortcuts();
    shortcuts->setIsPresent(true);
    here(QAccessible::Button, u"Raccourcis du bureau…"_s);
    EXPECT_FALSE(isHere(QAccessible::StaticText, u"Nouveau ticket : "_s));
    shortcuts->setKeys(DesktopShortcuts::NewIssue, u"Ctrl+Alt+N"_s);
    here(QAccessible::StaticText, u"Nouveau ticket : Ctrl+Alt+N"_s);
    EXPECT_FALSE(isHere(QAccessible::StaticText, u"Palette : "_s));
    shortcuts->setKeys(DesktopShortcuts::Palette, u"Super+K"_s);
    here(QAccessible::StaticText, u"Palette : Super+K"_s);
    shortcuts->setKeys(DesktopShortcuts::NewIssue, u"Super+N"_s);
    here(QAccessible::StaticText, u"Nouveau ticket : Super+N"_s);
}
