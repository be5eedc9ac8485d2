#pragma once

#include "commands/PaletteMode.h"
#include "model/Issue.h"
#include "state/palette/SearchableItems.h"

/// Rows of the palette that belong together.
struct PaletteSection
{
    QString id;
    /// Empty without one.
    QString title;
    QList<OptionItem> items;

    bool operator==(const PaletteSection &) const = default;
};

/// The palette proper: the issues found, the actions and the destinations that match the query. Sections without a row
/// are left out. Without a query all actions stand, and the first six destinations.
QList<PaletteSection> rootSections(const QString &query, const IssueList &found,
                                   const SearchableItems &actions,
                                   const SearchableItems &destinations);

/// A picker: the options that match the query, and, for labels, the row that makes a new one.
QList<PaletteSection> pickerSections(const QString &query, const PaletteMode::Picker &picker,
                                     const SearchableItems &options);
