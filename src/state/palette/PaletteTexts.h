#pragma once

#include "commands/PaletteMode.h"
#include "state/palette/PaletteRow.h"

/// The first three keys, and "+" with the number of further keys.
QStringList keyCapsules(const QStringList &keys);

/// The placeholder of the search field.
QString palettePlaceholder(const PaletteMode &mode);

enum class PaletteSearch { UnderWay, Done };
/// The text that is shown if there are no rows.
QString emptyPaletteText(PaletteSearch search);

/// The text for screen readers: the number of rows, and the highlighted one with its position, such as "12 résultats.
/// Créer, 3 sur 12". A highlight after the last row is left out.
QString spokenPaletteState(const QList<PaletteRow> &rows, int highlighted);
