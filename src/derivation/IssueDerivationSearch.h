#pragma once

#include "model/Issue.h"

#include <QByteArray>

#include <vector>

/// What a text search looks through: key, summary, labels and assignee of each issue, folded for search, in one stretch
/// of memory. A search reads it once from end to end, which is several times faster than visiting the records.
class SearchTexts
{
public:
    /// The folded text to look for; empty when there is nothing to look for, as for mere white space.
    static QByteArray needle(const QString &filterText);
    /// True when both issues have the same searchable texts.
    static bool sameTexts(const Issue &a, const Issue &b);

    void reserve(qsizetype issues, qsizetype bytes);
    /// Adds the texts of the next issue.
    void append(const Issue &issue);
    /// Adds the texts that `other` holds for its issue `row`; nothing is folded anew.
    void append(const SearchTexts &other, qsizetype row);

    qsizetype bytes() const { return m_texts.size(); }
    /// For each issue 1 if one of its texts contains the needle, else 0. An empty needle is contained everywhere.
    std::vector<quint8> containing(const QByteArray &needle) const;
    /// The same for a needle that contains another one, whose hits these are.
    std::vector<quint8> containing(const QByteArray &needle, std::vector<quint8> hits) const;

private:
    QByteArrayView textsOf(qsizetype row) const;

    QByteArray m_texts;
    /// Where the texts of each issue end.
    std::vector<qsizetype> m_ends;
};
