#pragma once

#include "derivation/IssueDerivationMenus.h"
#include "derivation/IssueFilters.h"
#include "screens/issues/menus/MenuSection.h"

#include <QLocale>

/// The five sets of the filters, in the order in which menus and chips show them.
enum class FilterSet { Statuses, Priorities, Assignees, Labels, Types };

/// The data from which the filters are chosen.
struct FilterSources
{
    const IssueDerivationMenus &menus;
    /// All issues of the list, including those that are filtered out.
    const IssueList &issues;
    /// The locale that determines the order of names.
    QLocale locale;
};

/// One non-empty set of the filters, as text.
class FilterChip
{
    Q_GADGET
    QML_VALUE_TYPE(filterChip)
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString field MEMBER field CONSTANT FINAL)
    Q_PROPERTY(QString value MEMBER value CONSTANT FINAL)

public:
    QString id;
    QString field;
    QString value;

    bool operator==(const FilterChip &) const = default;
};

/// "status", "priority", "assignee", "labels" or "types".
QString filterSetId(FilterSet set);
/// Absent for any other text.
std::optional<FilterSet> filterSetFromId(const QString &id);

/// The submenus of the filter menu. Labels and types are omitted if the list has none.
QList<MenuSection> filterSections(const IssueFilters &filters, const FilterSources &sources);
/// One chip for each non-empty set.
QList<FilterChip> filterChips(const IssueFilters &filters, const FilterSources &sources);

/// The filters with one entry of a set added, or removed if it was present. A type stands for all types of the same
/// name.
IssueFilters toggledFilter(IssueFilters filters, FilterSet set, const QString &choice,
                           const FilterSources &sources);
/// The filters with one set cleared.
IssueFilters emptiedFilter(IssueFilters filters, FilterSet set);
