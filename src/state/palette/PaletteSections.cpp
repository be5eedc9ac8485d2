#include "state/palette/PaletteSections.h"

#include "commands/NewLabel.h"
#include "state/palette/PaletteIssues.h"
#include "state/palette/PaletteNavigation.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QList<OptionItem> issueItems(const IssueList &issues)
{
    QList<OptionItem> items;
    for (const auto &issue : issues)
        items.append(issueItem(*issue));
    return items;
}

QList<OptionItem> offeredDestinations(const QString &query, const SearchableItems &destinations)
{
    const auto &all = destinations.items();
    if (!query.trimmed().isEmpty())
        return destinations.matching(query);
    return all.first(std::min(fixedDestinations, all.size()));
}

OptionItem newLabelItem(const QString &label, const QStringList &keys)
{
    return {.id = u"create-label"_s,
            .title = newLabelTitle(label),
            .icon = {OptionIcon::Symbol{u"plus"_s}},
            .keepsOpen = true,
            .run = {OptionAction::AddLabel{label, keys}}};
}

} // namespace

QList<PaletteSection> rootSections(const QString &query, const IssueList &found,
                                   const SearchableItems &actions,
                                   const SearchableItems &destinations)
{
    QList<PaletteSection> sections{
        {u"issues"_s, u"Tickets"_s, issueItems(found)},
        {u"actions"_s, u"Actions"_s, actions.matching(query)},
        {u"navigation"_s, u"Aller à"_s, offeredDestinations(query, destinations)}};
    sections.removeIf([](const PaletteSection &section) { return section.items.isEmpty(); });
    return sections;
}

QList<PaletteSection> pickerSections(const QString &query, const PaletteMode::Picker &picker,
                                     const SearchableItems &options)
{
    QList<PaletteSection> sections{{u"options"_s, QString(), options.matching(query)}};
    if (picker.kind != PickerKind::Labels)
        return sections;
    if (const auto label = newLabel(query, options.items(), LabelComparison::AsTyped))
        sections.append({u"create"_s, QString(), {newLabelItem(*label, picker.keys)}});
    return sections;
}
