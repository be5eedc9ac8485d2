#pragma once

#include "state/palette/PaletteSections.h"

/// One row of the palette on screen.
struct PaletteRow
{
    /// The unique key of the row, from the ids of its section and its option.
    QString key;
    /// The title above the row; empty unless the row is the first of a section with a title.
    QString sectionTitle;
    OptionItem option;

    bool operator==(const PaletteRow &) const = default;
};

/// All rows in order. The highlight refers to a row by its position in this list.
QList<PaletteRow> paletteRows(const QList<PaletteSection> &sections);
