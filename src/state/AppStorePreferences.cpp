#include "state/AppStorePreferences.h"

#include "model/RawValues.h"

using namespace Qt::StringLiterals;

namespace {

const auto LayoutKey = u"layout"_s;
const auto GroupingKey = u"grouping"_s;
const auto OrderingKey = u"ordering"_s;
const auto ShowCompletedKey = u"showCompleted"_s;
const auto DisplayKey = u"display"_s;
const auto FavoriteProjectsKey = u"favoriteProjects"_s;
const auto ActivityTeamWideKey = u"activityTeamWide"_s;
const auto AppearanceKey = u"appearance"_s;
const auto AccentKey = u"accent"_s;
const auto DensityKey = u"density"_s;

/// The stored enumerator; the fallback if there is none or its text is unknown.
template <typename E>
E storedCase(const Preferences &preferences, const QString &key, E fallback)
{
    const auto text = preferences.text(key);
    return text ? fromRawValue<E>(*text).value_or(fallback) : fallback;
}

DisplayProperties storedDisplay(const Preferences &preferences)
{
    const auto json = preferences.bytes(DisplayKey);
    return json ? DisplayProperties::fromJson(*json).value_or(DisplayProperties())
                : DisplayProperties();
}

} // namespace

AppStorePreferences::AppStorePreferences(Preferences &preferences, Desktop &desktop,
                                         QObject *parent)
    : AppStoreFields(parent), m_preferences(preferences), m_desktop(desktop)
{
    connect(&desktop, &Desktop::appearanceChanged, this, &AppStorePreferences::refreshAppearance);
}

void AppStorePreferences::readPreferences()
{
    const Preferences &stored = m_preferences;
    m_layout.set(storedCase(stored, LayoutKey, LayoutMode::List));
    m_grouping.set(storedCase(stored, GroupingKey, Grouping::Status));
    m_ordering.set(storedCase(stored, OrderingKey, Ordering::Priority));
    m_showCompleted.set(stored.flag(ShowCompletedKey).value_or(true));
    m_display.set(storedDisplay(stored));
    m_favoriteProjects.set(stored.texts(FavoriteProjectsKey).value_or(QStringList()));
    m_activityTeamWide.set(stored.flag(ActivityTeamWideKey).value_or(false));
    m_appearance.set(storedCase(stored, AppearanceKey, AppearanceMode::System));
    m_accentChoice.set(storedCase(stored, AccentKey, AccentChoice::Indigo));
    m_density.set(storedCase(stored, DensityKey, RowDensity::Comfortable));
    refreshAppearance();
}

void AppStorePreferences::setLayout(LayoutMode layout)
{
    if (m_layout.set(layout))
        m_preferences.setText(LayoutKey, rawValue(layout));
}

void AppStorePreferences::setGrouping(Grouping grouping)
{
    if (m_grouping.set(grouping))
        m_preferences.setText(GroupingKey, rawValue(grouping));
}

void AppStorePreferences::setOrdering(Ordering ordering)
{
    if (m_ordering.set(ordering))
        m_preferences.setText(OrderingKey, rawValue(ordering));
}

void AppStorePreferences::setShowCompleted(bool show)
{
    if (m_showCompleted.set(show))
        m_preferences.setFlag(ShowCompletedKey, show);
}

void AppStorePreferences::setDisplay(const DisplayProperties &display)
{
    if (m_display.set(display))
        m_preferences.setBytes(DisplayKey, display.toJson());
}

void AppStorePreferences::toggleFavorite(const QString &projectKey)
{
    QStringList keys = *m_favoriteProjects;
    if (!keys.removeOne(projectKey))
        keys += projectKey;
    m_favoriteProjects.set(keys);
    m_preferences.setTexts(FavoriteProjectsKey, keys);
}

void AppStorePreferences::setAppearance(AppearanceMode mode)
{
    if (!m_appearance.set(mode))
        return;
    m_preferences.setText(AppearanceKey, rawValue(mode));
    refreshAppearance();
}

void AppStorePreferences::setAccentChoice(AccentChoice choice)
{
    if (m_accentChoice.set(choice))
        m_preferences.setText(AccentKey, rawValue(choice));
}

void AppStorePreferences::setDensity(RowDensity density)
{
    if (m_density.set(density))
        m_preferences.setText(DensityKey, rawValue(density));
}

void AppStorePreferences::setActivityTeamWide(bool teamWide)
{
    if (m_activityTeamWide.set(teamWide))
        m_preferences.setFlag(ActivityTeamWideKey, teamWide);
}

void AppStorePreferences::refreshAppearance()
{
    m_desktop.applyAppearance(*m_appearance);
    const bool followsDesktop = *m_appearance == AppearanceMode::System;
    m_isDark.set(followsDesktop ? m_desktop.prefersDark() : *m_appearance == AppearanceMode::Dark);
    m_prefersReducedMotion.set(m_desktop.prefersReducedMotion());
}
