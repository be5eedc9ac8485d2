#include "shell/settings/SettingsTabs.h"

#include "platform/Wording.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

const auto TabKey = u"settingsTab"_s;
const auto DefaultTab = u"account"_s;

} // namespace

SettingsTabs::SettingsTabs(Preferences &preferences, QObject *parent)
    : QObject(parent), m_preferences(preferences)
{
}

QList<SettingsTab> SettingsTabs::tabs() const
{
    return {{u"account"_s, u"Compte"_s, u"person.crop.circle"_s},
            {u"appearance"_s, u"Apparence"_s, u"paintpalette"_s},
            {u"shortcuts"_s, u"Raccourcis"_s, u"keyboard"_s},
            {u"updates"_s, u"Mises à jour"_s, u"arrow.triangle.2.circlepath"_s}};
}

QString SettingsTabs::tab() const
{
    return m_preferences.text(TabKey).value_or(DefaultTab);
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
    return found == known.end() ? -1 : static_cast<int>(std::distance(known.begin(), found));
}

void SettingsTabs::setIndex(int index)
{
    const auto known = tabs();
    if (index >= 0 && index < known.size())
        setTab(known.at(index).value);
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
