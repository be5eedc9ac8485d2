#pragma once

#include "model/Issue.h"

#include <QByteArray>

#include <vector>

/// The texts that a text search examines: key, summary, labels and assignee of each issue, folded for search, in one
/// contiguous buffer. A search scans the buffer once, which is several times faster than reading the records.
class SearchTexts
{
public:
    /// The folded text to look for; empty if the filter text is empty or only white space.
    static QByteArray needle(const QString &filterText);
    /// True when both issues have the same searchable texts.
    static bool sameTexts(const Issue &a, const Issue &b);

    void reserve(qsizetype issues, qsizetype bytes);
    /// Adds the texts of the next issue.
    void append(const Issue &issue);
    /// Adds the texts that `other` has for its issue `row`, without folding them again.
    void append(const SearchTexts &other, qsizetype row);

    qsizetype bytes() const { return m_texts.size(); }
    /// For each issue, 1 if one of its texts contains the needle, else 0. Every text contains an empty needle.
    std::vector<quint8> containing(const QByteArray &needle) const;
    /// The same for a needle that contains an earlier needle; `hits` is the result for the earlier one.
    std::vector<quint8> containing(const QByteArray &needle, std::vector<quint8> hits) const;

private:
    QByteArrayView textsOf(qsizetype row) const;

    QByteArray m_texts;
    /// The end position of each issue's texts in `m_texts`.
    std::vector<qsizetype> m_ends;
};
