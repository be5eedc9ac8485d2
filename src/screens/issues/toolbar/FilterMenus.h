#pragma once

#include "derivation/IssueDerivationMenus.h"
#include "derivation/IssueFilters.h"
#include "screens/issues/menus/MenuSection.h"

#include <QLocale>

/// The five sets of the filters, in the order in which menus and chips show them.
enum class FilterSet { Statuses, Priorities, Assignees, Labels, Types };

/// What the filters choose from.
struct FilterSources
{
    const IssueDerivationMenus &menus;
    /// All issues of the list, shown or not.
    const IssueList &issues;
    /// By which names are ordered.
    QLocale locale;
};

/// One filled set of the filters, in words.
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
/// Nothing for any other text.
std::optional<FilterSet> filterSetFromId(const QString &id);

/// The submenus of the filter menu. Labels and types are left out where the list has none.
QList<MenuSection> filterSections(const IssueFilters &filters, const FilterSources &sources);
/// One chip for each filled set.
QList<FilterChip> filterChips(const IssueFilters &filters, const FilterSources &sources);

/// The filters with one entry of a set put in, or taken out if it was in. A type stands for all types of its name.
IssueFilters toggledFilter(IssueFilters filters, FilterSet set, const QString &choice,
                           const FilterSources &sources);
/// The filters with one set emptied.
IssueFilters emptiedFilter(IssueFilters filters, FilterSet set);
