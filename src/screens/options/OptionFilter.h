#pragma once

#include "commands/OptionItem.h"

#include <QList>

#include <optional>

/// The items that match a query, in their original order: those whose title or subtitle contains the query, regardless
/// of case and accents. White space around the query is ignored. An empty query matches all items.
QList<OptionItem> filteredOptions(const QList<OptionItem> &items, const QString &query);

/// The index of the first item that a digit picks.
std::optional<int> itemWithShortcut(const QList<OptionItem> &items, int digit);
