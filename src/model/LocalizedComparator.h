#pragma once

#include <QCollator>
#include <QLocale>
#include <QString>

/// The place of a text in the order of a language; made once, compared often.
using LocalizedKey = QCollatorSortKey;

/// The alphabetical order of a language. Case does not count, so texts that differ only in case are equal; an accent
/// counts only between texts that are otherwise the same. A locale without a language orders as French does.
class LocalizedComparator
{
public:
    explicit LocalizedComparator(const QLocale &locale);

    /// Negative, 0 or positive when `a` stands before, beside or after `b`.
    int compare(const QString &a, const QString &b) const { return m_collator.compare(a, b); }
    bool operator()(const QString &a, const QString &b) const { return compare(a, b) < 0; }
    /// What to sort many texts by: keys compare far faster than texts, in the same order.
    LocalizedKey key(const QString &text) const { return m_collator.sortKey(text); }

private:
    QCollator m_collator;
};

/// Compares two texts alone; for a whole list, make one `LocalizedComparator`.
int localizedCompare(const QString &a, const QString &b, const QLocale &locale);
