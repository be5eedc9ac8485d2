#include "state/palette/SearchableItems.h"

#include "model/TextFolding.h"

namespace {

/// The separator between two texts of an item. No folded text contains it, so no query can match across two texts.
constexpr QChar betweenTexts(0xFFFF);

QString foldedTexts(const OptionItem &item, SearchableItems::Texts texts)
{
    QString folded = foldedForSearch(item.title);
    if (texts == SearchableItems::Texts::TitleAndSubtitle && item.subtitle)
        folded += betweenTexts + foldedForSearch(*item.subtitle);
    return folded;
}

} // namespace

SearchableItems::SearchableItems(QList<OptionItem> items, Texts texts) : m_items(std::move(items))
{
    m_folded.reserve(m_items.size());
    for (const auto &item : m_items)
        m_folded.append(foldedTexts(item, texts));
}

QList<OptionItem> SearchableItems::matching(const QString &query) const
{
    const QString words = query.trimmed();
    if (words.isEmpty())
        return m_items;
    const QString needle = foldedForSearch(words);
    QList<OptionItem> found;
    for (qsizetype i = 0; !needle.isEmpty() && i < m_items.size(); ++i) {
        if (m_folded[i].contains(needle))
            found.append(m_items[i]);
    }
    return found;
}
