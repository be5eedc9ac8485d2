#pragma once

#include "commands/OptionItem.h"

/// Rows with their folded texts cached, so that a search only has to scan the texts.
class SearchableItems
{
public:
    enum class Texts { Title, TitleAndSubtitle };

    SearchableItems() = default;
    SearchableItems(QList<OptionItem> items, Texts texts);

    const QList<OptionItem> &items() const { return m_items; }
    /// The items that contain the trimmed query, without regard to case and diacritics, in their order; all of them for
    /// a query without words.
    QList<OptionItem> matching(const QString &query) const;

private:
    QList<OptionItem> m_items;
    /// The folded text of each item.
    QStringList m_folded;
};
