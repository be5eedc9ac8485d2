#pragma once

#include "commands/OptionItem.h"

#include <QList>

#include <optional>

/// The items that a query finds, in their order: those whose title or subtitle contains it, whatever the case and the
/// accents. White space round the query does not count; without anything else in it all items are found.
QList<OptionItem> filteredOptions(const QList<OptionItem> &items, const QString &query);

/// The value that a query would make: its words joined by hyphens. Nothing without a word, and where any item, found or
/// not, has that title already, whatever the case.
std::optional<QString> createCandidate(const QList<OptionItem> &items, const QString &query);

/// The position of the first item that a digit picks.
std::optional<int> itemWithShortcut(const QList<OptionItem> &items, int digit);
