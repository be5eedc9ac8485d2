#pragma once

#include "commands/OptionItem.h"

#include <QList>

#include <optional>

/// What of a query counts when it is compared with the labels that there are.
enum class LabelComparison {
    /// The words as they are typed: the palette offers "bug-fix" for "bug fix" even where there is a "bug-fix".
    AsTyped,
    /// The label that would be made of them: the list of a chip offers nothing then.
    AsMade
};

/// The label that a query would make: its words joined by hyphens, because labels contain no blanks. White space round
/// the query does not count. Nothing without a word, and where one of the labels on offer, found by the query or not, is
/// the same whatever the case.
std::optional<QString> newLabel(const QString &query, const QList<OptionItem> &labels,
                                LabelComparison comparison);

/// What the row that makes the label says.
QString newLabelTitle(const QString &label);
