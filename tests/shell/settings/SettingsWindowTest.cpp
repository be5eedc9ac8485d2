#include "shell/settings/SettingsFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class SettingsWindow : public SettingsFixture
{
protected:
    QStringList chosenTabs()
    {
        QStringList chosen;
        for (const auto &tab : spokenIn(settings(), QAccessible::PageTab)) {
            if (tab.state.selected)
                chosen += tab.name;
        }
        return chosen;
    }
    QString storedTab()
    {
        return Preferences(preferencesPath).text(u"settingsTab"_s).value_or(QString());
    }
    QStringList tabTitles()
    {
        QStringList titles;
        for (const auto &tab : spokenIn(settings(), QAccessible::PageTab))
            titles += tab.name;
        return titles;
    }
};

TEST_F(SettingsWindow, TheFirstTabIsTheAccount)
{
    openOnDemo();
    showSettings();
    EXPECT_EQ(chosenTabs(), QStringList{u"Compte"_s});
    here(QAccessible::Heading, u"Mode démo"_s);
}

TEST_F(SettingsWindow, AClickShowsTheOtherPageAlone)
{
    openOnDemo();
    showSettings();
    clickHere(QAccessible::PageTab, u"Apparence"_s);
    EXPECT_EQ(chosenTabs(), QStringList{u"Apparence"_s});
    here(QAccessible::Heading, u"Thème"_s);
    EXPECT_FALSE(isHere(QAccessible::Heading, u"Mode démo"_s));
}

TEST_F(SettingsWindow, TheTabsAreWalkedByKeyboardAlone)
{
    openOnDemo();
    showSettings();
    ASSERT_TRUE(tabTo(QAccessible::PageTab, u"Compte"_s));
    pressHere(Qt::Key_Right);
    EXPECT_EQ(chosenTabs(), QStringList{u"Apparence"_s});
    EXPECT_EQ(focusedHere(), u"Apparence"_s);
    pressHere(Qt::Key_Right);
    EXPECT_EQ(focusedHere(), u"Raccourcis"_s);
    here(QAccessible::ListItem, u"Palette de commandes : Ctrl+K"_s);
    pressHere(Qt::Key_Left);
    EXPECT_EQ(chosenTabs(), QStringList{u"Apparence"_s});
    pressHere(Qt::Key_Tab);
    EXPECT_EQ(focusedHere(), u"Système"_s) << "the page follows its tab";
    pressHere(Qt::Key_Backtab);
    EXPECT_EQ(focusedHere(), u"Apparence"_s);
}

TEST_F(SettingsWindow, BeyondTheFirstAndTheLastTabThereIsNoOther)
{
    openOnDemo();
    showSettings();
    ASSERT_TRUE(tabTo(QAccessible::PageTab, u"Compte"_s));
    pressHere(Qt::Key_Left);
    EXPECT_EQ(focusedHere(), u"Compte"_s);
    for (int i = 0; i < 5; ++i)
        pressHere(Qt::Key_Right);
    EXPECT_EQ(focusedHere(), tabTitles().constLast());
}

TEST_F(SettingsWindow, AnUnknownStoredTabSelectsNoneAndChangesNothingElse)
{
    choose(u"ailleurs"_s);
    openOnDemo();
    showSettings();
    EXPECT_TRUE(chosenTabs().isEmpty());
    EXPECT_TRUE(spokenIn(settings(), QAccessible::Heading).isEmpty());
    EXPECT_EQ(storedTab(), u"ailleurs"_s);
    pressHere(Qt::Key_Tab);
    EXPECT_EQ(focusedHere(), u"Compte"_s) << "the tabs can still be reached";
    pressHere(Qt::Key_Return);
    EXPECT_EQ(chosenTabs(), QStringList{u"Compte"_s});
    EXPECT_EQ(storedTab(), u"account"_s);
}

TEST_F(SettingsWindow, TheChosenTabSurvivesAClosedWindowASignOutAndARestart)
{
    openOnDemo();
    showSettings();
    clickHere(QAccessible::PageTab, u"Apparence"_s);
    pressHere(Qt::Key_Escape);
    EXPECT_FALSE(app->scenes().settingsWindow());
    store().signOut();
    showSettings();
    EXPECT_EQ(chosenTabs(), QStringList{u"Apparence"_s});
    app.reset();
    openSignedOut();
    showSettings();
    EXPECT_EQ(chosenTabs(), QStringList{u"Apparence"_s});
}

TEST_F(SettingsWindow, ItsSizeIsFixed)
{
    openOnDemo();
    showSettings();
    EXPECT_EQ(settings().minimumSize(), QSize(600, 560));
    EXPECT_EQ(settings().maximumSize(), QSize(600, 560));
}

TEST_F(SettingsWindow, APageThatIsHigherThanTheWindowFollowsTheFocus)
{
    choose(u"appearance"_s);
    openOnDemo();
    showSettings();
    ASSERT_TRUE(tabTo(QAccessible::CheckBox, u"Date de mise à jour"_s));
    settleHere();
    const QRect last = here(QAccessible::CheckBox, u"Date de mise à jour"_s).box;
    EXPECT_TRUE(QRect(0, 76, 600, 484).contains(last)) << last.top();
    ASSERT_TRUE(tabTo(QAccessible::RadioButton, u"Système"_s));
    settleHere();
    EXPECT_GE(here(QAccessible::RadioButton, u"Système"_s).box.top(), 76);
}

TEST_F(SettingsWindow, ThePageScrollsByKeysBeforeAnyControlHasTheFocus)
{
    choose(u"appearance"_s);
    openOnDemo();
    showSettings();
    const int before = here(QAccessible::Heading, u"Thème"_s).box.top();
    pressHere(Qt::Key_PageDown);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return spokenIn(settings(), QAccessible::Heading, u"Thème"_s).first().box.top() < before;
    }));
}

TEST_F(SettingsWindow, NothingThatTakesTheFocusIsNameless)
{
    openOnDemo();
    showSettings();
    for (const QString &title : tabTitles()) {
        clickHere(QAccessible::PageTab, title);
        for (const auto &thing : spokenIn(settings())) {
            if (thing.state.focusable)
                EXPECT_FALSE(thing.name.isEmpty())
                    << title.toStdString() << ": role " << thing.role << " at " << thing.box.y();
        }
    }
}

TEST_F(SettingsWindow, ControlQEndsTheProgramFromHereToo)
{
    openOnDemo();
    showSettings();
    bool hasQuit = false;
    QObject::connect(qmlEngine(&window()), &QQmlEngine::quit, &window(), [&] { hasQuit = true; });
    pressHere(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(hasQuit);
}
