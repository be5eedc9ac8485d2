#include "model/RawValues.h"
#include "state/AppStore.h"

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

/// The stored case; the fallback when there is none or its text is unknown.
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

AppearanceMode following(AppearanceMode mode)
{
    switch (mode) {
    case AppearanceMode::System:
        return AppearanceMode::Light;
    case AppearanceMode::Light:
        return AppearanceMode::Dark;
    case AppearanceMode::Dark:
        return AppearanceMode::System;
    }
    Q_UNREACHABLE();
}

struct AppearanceWords
{
    QString label;
    QString symbol;
};

AppearanceWords words(AppearanceMode mode)
{
    switch (mode) {
    case AppearanceMode::System:
        return {u"Système"_s, u"circle.lefthalf.filled"_s};
    case AppearanceMode::Light:
        return {u"Clair"_s, u"sun.max.fill"_s};
    case AppearanceMode::Dark:
        return {u"Sombre"_s, u"moon.fill"_s};
    }
    Q_UNREACHABLE();
}

} // namespace

void AppStore::readPreferences()
{
    const Preferences &stored = m_context.preferences;
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
}

void AppStore::setLayout(LayoutMode layout)
{
    if (m_layout.set(layout))
        m_context.preferences.setText(LayoutKey, rawValue(layout));
}

void AppStore::setGrouping(Grouping grouping)
{
    if (m_grouping.set(grouping))
        m_context.preferences.setText(GroupingKey, rawValue(grouping));
}

void AppStore::setOrdering(Ordering ordering)
{
    if (m_ordering.set(ordering))
        m_context.preferences.setText(OrderingKey, rawValue(ordering));
}

void AppStore::setShowCompleted(bool show)
{
    if (m_showCompleted.set(show))
        m_context.preferences.setFlag(ShowCompletedKey, show);
}

void AppStore::setDisplay(const DisplayProperties &display)
{
    if (m_display.set(display))
        m_context.preferences.setBytes(DisplayKey, display.toJson());
}

void AppStore::toggleFavorite(const QString &projectKey)
{
    QStringList keys = *m_favoriteProjects;
    if (!keys.removeOne(projectKey))
        keys += projectKey;
    m_favoriteProjects.set(keys);
    m_context.preferences.setTexts(FavoriteProjectsKey, keys);
}

void AppStore::setAppearance(AppearanceMode mode)
{
    if (!m_appearance.set(mode))
        return;
    m_context.preferences.setText(AppearanceKey, rawValue(mode));
    refreshAppearance();
}

void AppStore::cycleAppearance()
{
    setAppearance(following(*m_appearance));
    const auto [label, symbol] = words(*m_appearance);
    toast(u"Apparence : "_s + label, symbol);
}

void AppStore::setAccentChoice(AccentChoice choice)
{
    if (m_accentChoice.set(choice))
        m_context.preferences.setText(AccentKey, rawValue(choice));
}

void AppStore::setDensity(RowDensity density)
{
    if (m_density.set(density))
        m_context.preferences.setText(DensityKey, rawValue(density));
}

void AppStore::setActivityTeamWide(bool teamWide)
{
    if (m_activityTeamWide.set(teamWide))
        m_context.preferences.setFlag(ActivityTeamWideKey, teamWide);
}

void AppStore::refreshAppearance()
{
    const bool followsDesktop = *m_appearance == AppearanceMode::System;
    m_isDark.set(followsDesktop ? m_context.desktop.prefersDark()
                                : *m_appearance == AppearanceMode::Dark);
    m_prefersReducedMotion.set(m_context.desktop.prefersReducedMotion());
}
