#pragma once

#include <QCollator>
#include <QLocale>
#include <QString>

/// The sort key of a text in the order of a language. It is computed once and can be compared many times.
using LocalizedKey = QCollatorSortKey;

/// The alphabetical order of a language. Case is ignored, so texts that differ only in case are equal. Accents decide
/// only between texts that are otherwise equal. A locale without a language uses the French order.
class LocalizedComparator
{
public:
    explicit LocalizedComparator(const QLocale &locale);

    /// Negative, 0 or positive if `a` sorts before, equal to or after `b`.
    int compare(const QString &a, const QString &b) const { return m_collator.compare(a, b); }
    bool operator()(const QString &a, const QString &b) const { return compare(a, b) < 0; }
    /// The sort key of a text. Comparing keys gives the same order as comparing texts and is much faster in a long
    /// sort.
    LocalizedKey key(const QString &text) const { return m_collator.sortKey(text); }

private:
    QCollator m_collator;
};

/// Compares two single texts. To sort a whole list, create one `LocalizedComparator` instead.
int localizedCompare(const QString &a, const QString &b, const QLocale &locale);
