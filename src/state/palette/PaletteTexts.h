#pragma once

#include "commands/PaletteMode.h"
#include "state/palette/PaletteRow.h"

/// The first three keys, and "+" and how many more there are.
QStringList keyCapsules(const QStringList &keys);

/// What the search field says while it is empty.
QString palettePlaceholder(const PaletteMode &mode);

enum class PaletteSearch { UnderWay, Done };
/// What stands in place of rows.
QString emptyPaletteText(PaletteSearch search);

/// How many rows there are, and the highlighted one with its place among them: "12 résultats. Créer, 3 sur 12". A
/// highlight behind the last row is not spoken of.
QString spokenPaletteState(const QList<PaletteRow> &rows, int highlighted);
