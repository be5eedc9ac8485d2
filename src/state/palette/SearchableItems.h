#pragma once

#include "commands/OptionItem.h"

/// Rows with their searchable texts folded once, so that each key typed costs one pass over texts and nothing else.
class SearchableItems
{
public:
    enum class Texts { Title, TitleAndSubtitle };

    SearchableItems() = default;
    SearchableItems(QList<OptionItem> items, Texts texts);

    const QList<OptionItem> &items() const { return m_items; }
    /// The items that contain the trimmed query, without regard to case and diacritics, in their order; all of them for
    /// a query without a word.
    QList<OptionItem> matching(const QString &query) const;

private:
    QList<OptionItem> m_items;
    /// One for each item.
    QStringList m_folded;
};
