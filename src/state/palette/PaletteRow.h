#pragma once

#include "state/palette/PaletteSections.h"

/// One row of the palette on screen.
struct PaletteRow
{
    /// Tells the row from all others: its section and its option.
    QString key;
    /// What stands above the row; empty unless it is the first of a section with a title.
    QString sectionTitle;
    OptionItem option;

    bool operator==(const PaletteRow &) const = default;
};

/// All rows in order. The position of a row is what the highlight counts.
QList<PaletteRow> paletteRows(const QList<PaletteSection> &sections);
