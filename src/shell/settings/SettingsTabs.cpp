#include "shell/settings/SettingsTabs.h"

#include "platform/Wording.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

const auto TabKey = u"settingsTab"_s;

} // namespace

SettingsTabs::SettingsTabs(Preferences &preferences, QObject *parent)
    : QObject(parent), m_preferences(preferences)
{
}

QList<SettingsTab> SettingsTabs::tabs() const
{
    return {{u"shortcuts"_s, u"Raccourcis"_s, u"keyboard"_s}};
}

QString SettingsTabs::tab() const
{
    const auto known = tabs();
    const auto stored = m_preferences.text(TabKey);
    const auto found =
        std::ranges::find_if(known, [&](const SettingsTab &tab) { return tab.value == stored; });
    return found == known.end() ? known.first().value : found->value;
}

void SettingsTabs::setTab(const QString &tab)
{
    if (tab == this->tab())
        return;
    m_preferences.setText(TabKey, tab);
    Q_EMIT tabChanged();
}

int SettingsTabs::index() const
{
    const auto known = tabs();
    const auto found = std::ranges::find(known, tab(), &SettingsTab::value);
    return static_cast<int>(std::distance(known.begin(), found));
}

void SettingsTabs::setIndex(int index)
{
    setTab(tabs().at(index).value);
}

QList<ShortcutGroup> SettingsTabs::shortcuts() const
{
    QList<ShortcutGroup> groups = shortcutReference();
    for (auto &group : groups) {
        for (auto &row : group.rows)
            row.keys = Wording::localized(row.keys);
    }
    return groups;
}
