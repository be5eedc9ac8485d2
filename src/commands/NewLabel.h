#pragma once

#include "commands/OptionItem.h"

#include <QList>

#include <optional>

/// How a query is compared with the existing labels.
enum class LabelComparison {
    /// The words are compared as typed. The palette uses this, and offers "bug-fix" for "bug fix" even if the label
    /// "bug-fix" exists.
    AsTyped,
    /// The label that would be created is compared. The list of a chip uses this, and offers nothing in that case.
    AsMade
};

/// The label that a query would create: its words joined by hyphens, because labels contain no spaces. White space
/// around the query is ignored. Nothing if the query has no words, or if one of `labels`, whether or not the query
/// finds it, is equal without regard to case.
std::optional<QString> newLabel(const QString &query, const QList<OptionItem> &labels,
                                LabelComparison comparison);

/// The title of the row that creates the label.
QString newLabelTitle(const QString &label);
