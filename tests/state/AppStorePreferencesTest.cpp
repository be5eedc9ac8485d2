#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class AppStorePreferencesTest : public AppStoreFixture
{
};

TEST_F(AppStorePreferencesTest, anEmptyPreferenceStoreGivesTheDefaults)
{
    EXPECT_EQ(store->layout(), LayoutMode::List);
    EXPECT_EQ(store->grouping(), Grouping::Status);
    EXPECT_EQ(store->ordering(), Ordering::Priority);
    EXPECT_TRUE(store->showCompleted());
    EXPECT_FALSE(store->display().type);
    EXPECT_TRUE(store->display().key && store->display().priority && store->display().labels);
    EXPECT_TRUE(store->display().assignee && store->display().dueDate && store->display().updated);
    EXPECT_TRUE(store->favoriteProjects().isEmpty());
    EXPECT_FALSE(store->activityTeamWide());
    EXPECT_EQ(store->appearance(), AppearanceMode::System);
    EXPECT_EQ(store->accentChoice(), AccentChoice::Indigo);
    EXPECT_EQ(store->density(), RowDensity::Comfortable);
}

TEST_F(AppStorePreferencesTest, everyChoiceIsOnTheDiskAtOnceAndReadByTheNextStart)
{
    DisplayProperties display;
    display.type = true;
    display.updated = false;
    store->setLayout(LayoutMode::Board);
    store->setGrouping(Grouping::Assignee);
    store->setOrdering(Ordering::Manual);
    store->setShowCompleted(false);
    store->setDisplay(display);
    store->toggleFavorite(u"WEB"_s);
    store->setActivityTeamWide(true);
    store->setAppearance(AppearanceMode::Dark);
    store->setAccentChoice(AccentChoice::Pink);
    store->setDensity(RowDensity::Compact);

    const Preferences disk(preferencesPath);
    EXPECT_EQ(disk.text(u"layout"_s), u"board"_s);
    EXPECT_EQ(disk.text(u"grouping"_s), u"assignee"_s);
    EXPECT_EQ(disk.text(u"ordering"_s), u"manual"_s);
    EXPECT_EQ(disk.flag(u"showCompleted"_s), false);
    EXPECT_EQ(disk.bytes(u"display"_s), display.toJson());
    EXPECT_EQ(disk.texts(u"favoriteProjects"_s), QStringList(u"WEB"_s));
    EXPECT_EQ(disk.flag(u"activityTeamWide"_s), true);
    EXPECT_EQ(disk.text(u"appearance"_s), u"dark"_s);
    EXPECT_EQ(disk.text(u"accent"_s), u"pink"_s);
    EXPECT_EQ(disk.text(u"density"_s), u"compact"_s);

    makeStore();
    EXPECT_EQ(store->layout(), LayoutMode::Board);
    EXPECT_EQ(store->grouping(), Grouping::Assignee);
    EXPECT_EQ(store->ordering(), Ordering::Manual);
    EXPECT_FALSE(store->showCompleted());
    EXPECT_EQ(store->display(), display);
    EXPECT_EQ(store->favoriteProjects(), QStringList(u"WEB"_s));
    EXPECT_TRUE(store->activityTeamWide());
    EXPECT_EQ(store->appearance(), AppearanceMode::Dark);
    EXPECT_EQ(store->accentChoice(), AccentChoice::Pink);
    EXPECT_EQ(store->density(), RowDensity::Compact);
}

TEST_F(AppStorePreferencesTest, showCompletedStoredAsFalseStaysFalse)
{
    preferences.setFlag(u"showCompleted"_s, false);
    makeStore();

    EXPECT_FALSE(store->showCompleted());
}

TEST_F(AppStorePreferencesTest, unknownTextsTakeTheDefaultsAndStayStoredUntilTheNextChange)
{
    const QStringList names = {u"layout"_s,     u"grouping"_s, u"ordering"_s,
                               u"appearance"_s, u"accent"_s,   u"density"_s};
    for (const QString &name : names)
        preferences.setText(name, u"mauve"_s);
    makeStore();

    EXPECT_EQ(store->layout(), LayoutMode::List);
    EXPECT_EQ(store->grouping(), Grouping::Status);
    EXPECT_EQ(store->ordering(), Ordering::Priority);
    EXPECT_EQ(store->appearance(), AppearanceMode::System);
    EXPECT_EQ(store->accentChoice(), AccentChoice::Indigo);
    EXPECT_EQ(store->density(), RowDensity::Comfortable);
    for (const QString &name : names)
        EXPECT_EQ(Preferences(preferencesPath).text(name), u"mauve"_s) << name.toStdString();

    store->setAccentChoice(AccentChoice::Green);
    EXPECT_EQ(Preferences(preferencesPath).text(u"accent"_s), u"green"_s);
}

TEST_F(AppStorePreferencesTest, valuesOfAnotherKindTakeTheDefaults)
{
    preferences.setBytes(u"layout"_s, "board");
    preferences.setText(u"showCompleted"_s, u"peut-être"_s);
    preferences.setText(u"favoriteProjects"_s, u"WEB"_s);
    preferences.setText(u"display"_s, u"{}"_s);
    makeStore();

    EXPECT_EQ(store->layout(), LayoutMode::List);
    EXPECT_TRUE(store->showCompleted());
    EXPECT_TRUE(store->favoriteProjects().isEmpty());
    EXPECT_EQ(store->display(), DisplayProperties());
}

TEST_F(AppStorePreferencesTest, aDisplayObjectWithSixOfItsSevenKeysGivesTheDefaultsForAllSeven)
{
    const QByteArray six =
        R"({"key":false,"priority":false,"type":true,"labels":false,"assignee":false,"dueDate":false})";
    preferences.setBytes(u"display"_s, six);
    makeStore();

    EXPECT_EQ(store->display(), DisplayProperties());
    EXPECT_EQ(Preferences(preferencesPath).bytes(u"display"_s), six) << "it stays stored";
}

TEST_F(AppStorePreferencesTest, aSignOutKeepsThePreferences)
{
    store->setLayout(LayoutMode::Board);
    store->toggleFavorite(u"WEB"_s);
    startSession();
    store->signOut();

    EXPECT_EQ(store->layout(), LayoutMode::Board);
    EXPECT_EQ(Preferences(preferencesPath).texts(u"favoriteProjects"_s), QStringList(u"WEB"_s));
}

TEST_F(AppStorePreferencesTest, threeTurnsOfTheAppearanceEndWhereTheyBegan)
{
    for (int i = 0; i < 3; ++i)
        store->cycleAppearance();

    EXPECT_EQ(store->appearance(), AppearanceMode::System);
    ASSERT_EQ(store->toasts().size(), 3);
    EXPECT_EQ(store->toasts()[0].message, u"Apparence : Clair"_s);
    EXPECT_EQ(store->toasts()[0].symbol, u"sun.max.fill"_s);
    EXPECT_EQ(store->toasts()[1].message, u"Apparence : Sombre"_s);
    EXPECT_EQ(store->toasts()[1].symbol, u"moon.fill"_s);
    EXPECT_EQ(store->toasts()[2].message, u"Apparence : Système"_s);
    EXPECT_EQ(store->toasts()[2].symbol, u"circle.lefthalf.filled"_s);
    EXPECT_FALSE(store->toasts()[0].isError());
}

TEST_F(AppStorePreferencesTest, theNativePartsTakeTheChosenAppearanceAtTheStartAndAtEachChange)
{
    EXPECT_EQ(desktop.nativeAppearance, AppearanceMode::System);
    for (const auto mode : {AppearanceMode::Light, AppearanceMode::Dark, AppearanceMode::System}) {
        store->setAppearance(mode);
        EXPECT_EQ(desktop.nativeAppearance, mode);
    }
    preferences.setText(u"appearance"_s, u"dark"_s);
    makeStore();
    EXPECT_EQ(desktop.nativeAppearance, AppearanceMode::Dark);
}

TEST_F(AppStorePreferencesTest, theAppearanceInForceFollowsTheDesktopOnlyWhereAskedTo)
{
    const QSignalSpy changes(store.get(), &AppStore::isDarkChanged);
    EXPECT_FALSE(store->isDark());
    desktop.setPrefersDark(true);
    EXPECT_TRUE(store->isDark());
    store->setAppearance(AppearanceMode::Light);
    EXPECT_FALSE(store->isDark());
    store->setAppearance(AppearanceMode::Dark);
    desktop.setPrefersDark(false);
    EXPECT_TRUE(store->isDark());
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(AppStorePreferencesTest, reducedMotionFollowsTheDesktop)
{
    desktop.setPrefersReducedMotion(true);

    EXPECT_TRUE(store->prefersReducedMotion());
}

TEST_F(AppStorePreferencesTest, aFavouriteToggledTwiceComesBackAtTheEnd)
{
    store->toggleFavorite(u"WEB"_s);
    store->toggleFavorite(u"API"_s);
    store->toggleFavorite(u"WEB"_s);
    EXPECT_EQ(store->favoriteProjects(), QStringList(u"API"_s));
    store->toggleFavorite(u"WEB"_s);

    EXPECT_EQ(store->favoriteProjects(), QStringList({u"API"_s, u"WEB"_s}));
    EXPECT_EQ(Preferences(preferencesPath).texts(u"favoriteProjects"_s),
              QStringList({u"API"_s, u"WEB"_s}));
}

TEST_F(AppStorePreferencesTest, eachPreferenceSetTwiceNotifiesOnce)
{
    const auto notifications = [this](auto signal, const std::function<void()> &change) {
        const QSignalSpy spy(store.get(), signal);
        change();
        change();
        return spy.count();
    };
    DisplayProperties display;
    display.key = false;

    EXPECT_EQ(notifications(&AppStore::layoutChanged, [&] { store->setLayout(LayoutMode::Board); }),
              1);
    EXPECT_EQ(
        notifications(&AppStore::groupingChanged, [&] { store->setGrouping(Grouping::None); }), 1);
    EXPECT_EQ(notifications(&AppStore::orderingChanged, [&] { store->setOrdering(Ordering::Key); }),
              1);
    EXPECT_EQ(
        notifications(&AppStore::showCompletedChanged, [&] { store->setShowCompleted(false); }), 1);
    EXPECT_EQ(notifications(&AppStore::displayChanged, [&] { store->setDisplay(display); }), 1);
    EXPECT_EQ(notifications(&AppStore::activityTeamWideChanged,
                            [&] { store->setActivityTeamWide(true); }),
              1);
    EXPECT_EQ(notifications(&AppStore::appearanceChanged,
                            [&] { store->setAppearance(AppearanceMode::Dark); }),
              1);
    EXPECT_EQ(notifications(&AppStore::accentChoiceChanged,
                            [&] { store->setAccentChoice(AccentChoice::Blue); }),
              1);
    EXPECT_EQ(
        notifications(&AppStore::densityChanged, [&] { store->setDensity(RowDensity::Compact); }),
        1);
}

} // namespace
