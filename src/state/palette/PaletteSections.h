#pragma once

#include "commands/PaletteMode.h"
#include "model/Issue.h"
#include "state/palette/SearchableItems.h"

/// A group of rows of the palette.
struct PaletteSection
{
    QString id;
    /// Empty for a section without a title.
    QString title;
    QList<OptionItem> items;

    bool operator==(const PaletteSection &) const = default;
};

/// The sections of the palette when no picker is open: the found issues, and the actions and destinations that match
/// the query. Empty sections are left out. For an empty query, all actions and the first `fixedDestinations`
/// destinations are included.
QList<PaletteSection> rootSections(const QString &query, const IssueList &found,
                                   const SearchableItems &actions,
                                   const SearchableItems &destinations);

/// The sections of a picker: the options that match the query and, for labels, the row that creates a new one.
QList<PaletteSection> pickerSections(const QString &query, const PaletteMode::Picker &picker,
                                     const SearchableItems &options);
