#include "screens/issues/toolbar/FilterMenus.h"

#include "model/LocalizedComparator.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array sets{FilterSet::Statuses, FilterSet::Priorities, FilterSet::Assignees,
                          FilterSet::Labels, FilterSet::Types};
constexpr std::array levels{PriorityLevel::Urgent, PriorityLevel::High, PriorityLevel::Medium,
                            PriorityLevel::Low, PriorityLevel::None};

QString fieldOf(FilterSet set)
{
    switch (set) {
    case FilterSet::Statuses:
        return u"Statut"_s;
    case FilterSet::Priorities:
        return u"Priorité"_s;
    case FilterSet::Assignees:
        return u"Assigné"_s;
    case FilterSet::Labels:
        return u"Étiquette"_s;
    case FilterSet::Types:
        return u"Type"_s;
    }
    return {};
}

/// The ids of all types with a name, because the types of several projects can share a name and the filters store ids.
QStringList typeIds(const QString &name, const IssueList &issues)
{
    QStringList ids;
    for (const auto &issue : issues) {
        if (issue->type && issue->type->name == name && !ids.contains(issue->type->id))
            ids += issue->type->id;
    }
    return ids;
}

QList<MenuChoice> statusChoices(const IssueFilters &filters, const FilterSources &sources)
{
    QList<MenuChoice> choices;
    for (const auto &status : sources.menus.statuses)
        choices += {status.groupKey(), status.displayName(), OptionIcon{status},
                    filters.statuses.contains(status.groupKey())};
    return choices;
}

QList<MenuChoice> priorityChoices(const IssueFilters &filters)
{
    QList<MenuChoice> choices;
    for (const auto level : levels)
        choices += {QString::number(int(level)), displayName(level), OptionIcon{level},
                    filters.priorities.contains(level)};
    return choices;
}

QList<MenuChoice> assigneeChoices(const IssueFilters &filters, const FilterSources &sources)
{
    QList<MenuChoice> choices{{IssueFilters::unassigned, u"Non assigné"_s,
                               OptionIcon{OptionIcon::User{}},
                               filters.assignees.contains(IssueFilters::unassigned)}};
    for (const auto &user : sources.menus.assignees)
        choices += {user.id, user.name, OptionIcon{OptionIcon::User{user}},
                    filters.assignees.contains(user.id)};
    return choices;
}

QList<MenuChoice> labelChoices(const IssueFilters &filters, const FilterSources &sources)
{
    QList<MenuChoice> choices;
    for (const auto &label : sources.menus.labels)
        choices +=
            {label, label, OptionIcon{OptionIcon::Label{label}}, filters.labels.contains(label)};
    return choices;
}

QList<MenuChoice> typeChoices(const IssueFilters &filters, const FilterSources &sources)
{
    QSet<QString> chosen;
    for (const auto &issue : sources.issues) {
        if (issue->type && filters.types.contains(issue->type->id))
            chosen += issue->type->name;
    }
    QList<MenuChoice> choices;
    for (const auto &type : sources.menus.types)
        choices += {type.name, type.name, OptionIcon{type}, chosen.contains(type.name)};
    return choices;
}

QList<MenuChoice> choicesOf(FilterSet set, const IssueFilters &filters,
                            const FilterSources &sources)
{
    switch (set) {
    case FilterSet::Statuses:
        return statusChoices(filters, sources);
    case FilterSet::Priorities:
        return priorityChoices(filters);
    case FilterSet::Assignees:
        return assigneeChoices(filters, sources);
    case FilterSet::Labels:
        return labelChoices(filters, sources);
    case FilterSet::Types:
        return typeChoices(filters, sources);
    }
    return {};
}

qsizetype sizeOf(FilterSet set, const IssueFilters &filters)
{
    switch (set) {
    case FilterSet::Statuses:
        return filters.statuses.size();
    case FilterSet::Priorities:
        return filters.priorities.size();
    case FilterSet::Assignees:
        return filters.assignees.size();
    case FilterSet::Labels:
        return filters.labels.size();
    case FilterSet::Types:
        return filters.types.size();
    }
    return 0;
}

QString labelNames(const IssueFilters &filters, const QLocale &locale)
{
    const LocalizedComparator order(locale);
    auto names = filters.labels.values();
    std::ranges::sort(names, [&](const QString &a, const QString &b) {
        const int compared = order.compare(a, b);
        return compared == 0 ? a < b : compared < 0;
    });
    return names.join(u", "_s);
}

/// The chosen values as text. If the list contains none of them any more, their number instead. Labels serve as their
/// own text.
QString valueOf(FilterSet set, const IssueFilters &filters, const FilterSources &sources)
{
    if (set == FilterSet::Labels)
        return labelNames(filters, sources.locale);
    QStringList names;
    for (const auto &choice : choicesOf(set, filters, sources)) {
        if (choice.isOn)
            names += choice.title;
    }
    return names.isEmpty() ? QString::number(sizeOf(set, filters)) : names.join(u", "_s);
}

template <typename T>
void toggle(QSet<T> &values, const T &value)
{
    if (!values.remove(value))
        values.insert(value);
}

void toggleType(QSet<QString> &types, const QStringList &ids)
{
    const QSet<QString> given(ids.begin(), ids.end());
    if (types.intersects(given))
        types.subtract(given);
    else
        types.unite(given);
}

} // namespace

QString filterSetId(FilterSet set)
{
    switch (set) {
    case FilterSet::Statuses:
        return u"status"_s;
    case FilterSet::Priorities:
        return u"priority"_s;
    case FilterSet::Assignees:
        return u"assignee"_s;
    case FilterSet::Labels:
        return u"labels"_s;
    case FilterSet::Types:
        return u"types"_s;
    }
    return {};
}

std::optional<FilterSet> filterSetFromId(const QString &id)
{
    const auto *set = std::ranges::find(sets, id, filterSetId);
    return set == sets.end() ? std::nullopt : std::optional(*set);
}

QList<MenuSection> filterSections(const IssueFilters &filters, const FilterSources &sources)
{
    QList<MenuSection> sections;
    for (const auto set : sets) {
        const auto choices = choicesOf(set, filters, sources);
        const bool isOptional = set == FilterSet::Labels || set == FilterSet::Types;
        if (!choices.isEmpty() || !isOptional)
            sections += {filterSetId(set), fieldOf(set), choices};
    }
    return sections;
}

QList<FilterChip> filterChips(const IssueFilters &filters, const FilterSources &sources)
{
    QList<FilterChip> chips;
    for (const auto set : sets) {
        if (sizeOf(set, filters) > 0)
            chips += {filterSetId(set), fieldOf(set), valueOf(set, filters, sources)};
    }
    return chips;
}

IssueFilters toggledFilter(IssueFilters filters, FilterSet set, const QString &choice,
                           const FilterSources &sources)
{
    switch (set) {
    case FilterSet::Statuses:
        toggle(filters.statuses, choice);
        break;
    case FilterSet::Priorities:
        toggle(filters.priorities, PriorityLevel(choice.toInt()));
        break;
    case FilterSet::Assignees:
        toggle(filters.assignees, choice);
        break;
    case FilterSet::Labels:
        toggle(filters.labels, choice);
        break;
    case FilterSet::Types:
        toggleType(filters.types, typeIds(choice, sources.issues));
        break;
    }
    return filters;
}

IssueFilters emptiedFilter(IssueFilters filters, FilterSet set)
{
    switch (set) {
    case FilterSet::Statuses:
        filters.statuses.clear();
        break;
    case FilterSet::Priorities:
        filters.priorities.clear();
        break;
    case FilterSet::Assignees:
        filters.assignees.clear();
        break;
    case FilterSet::Labels:
        filters.labels.clear();
        break;
    case FilterSet::Types:
        filters.types.clear();
        break;
    }
    return filters;
}
