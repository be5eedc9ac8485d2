#include "shell/settings/SettingsTabs.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class SettingsTabsTest : public testing::Test
{
protected:
    QTemporaryDir folder;
    Preferences preferences{folder.filePath(u"Velmora.ini"_s)};
};

TEST_F(SettingsTabsTest, WithoutAStoredTabTheAccountIsChosen)
{
    const SettingsTabs tabs(preferences);
    EXPECT_EQ(tabs.tab(), u"account"_s);
    EXPECT_EQ(tabs.index(), 0);
    EXPECT_FALSE(preferences.text(u"settingsTab"_s));
}

TEST_F(SettingsTabsTest, AnUnknownStoredTabSelectsNoneAndChangesNothing)
{
    preferences.setText(u"settingsTab"_s, u"ailleurs"_s);
    const SettingsTabs tabs(preferences);
    EXPECT_EQ(tabs.index(), -1);
    EXPECT_EQ(preferences.text(u"settingsTab"_s), u"ailleurs"_s);
}

TEST_F(SettingsTabsTest, AChosenTabIsStored)
{
    SettingsTabs tabs(preferences);
    QSignalSpy changed(&tabs, &SettingsTabs::tabChanged);
    tabs.setTab(u"shortcuts"_s);
    EXPECT_EQ(preferences.text(u"settingsTab"_s), u"shortcuts"_s);
    tabs.setTab(u"shortcuts"_s);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(SettingsTabs(preferences).tab(), u"shortcuts"_s);
}

TEST_F(SettingsTabsTest, APositionOutsideTheTabsChangesNothing)
{
    SettingsTabs tabs(preferences);
    QSignalSpy changed(&tabs, &SettingsTabs::tabChanged);
    tabs.setIndex(-1);
    tabs.setIndex(int(tabs.tabs().size()));
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(SettingsTabsTest, ATabIsAlsoChosenByItsPosition)
{
    preferences.setText(u"settingsTab"_s, u"ailleurs"_s);
    SettingsTabs tabs(preferences);
    for (int i = 0; i < tabs.tabs().size(); ++i) {
        tabs.setIndex(i);
        EXPECT_EQ(tabs.index(), i);
        EXPECT_EQ(tabs.tab(), tabs.tabs()[i].value);
    }
}

TEST_F(SettingsTabsTest, ShortcutsReadAsOnThisSystem)
{
    const SettingsTabs tabs(preferences);
    const auto groups = tabs.shortcuts();
    ASSERT_EQ(groups.size(), 3);
    EXPECT_EQ(groups[0].rows[0].keys, u"Ctrl+K"_s);
    EXPECT_EQ(groups[2].rows[5].keys, u"X  ·  Ctrl+clic  ·  Maj+clic"_s);
    EXPECT_EQ(groups[2].rows[7].keys, u"Ctrl+Maj+."_s);
}
