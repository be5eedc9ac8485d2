#pragma once

#include "derivation/IssueDerivationSearch.h"
#include "derivation/KeyIndex.h"

#include <QHash>

#include <vector>

/// Assigns a number to each distinct text, from 0. The number of a text never changes.
class Ordinals
{
public:
    quint32 of(const QString &text);
    quint32 count() const { return quint32(m_numbers.size()); }

private:
    QHash<QString, quint32> m_numbers;
};

/// The properties of an issue that sorting, grouping and filtering read, as numbers, so that they do not need to read
/// the record.
struct IndexedIssue
{
    quint32 status = 0;
    quint32 assignee = 0;
    quint32 project = 0;
    quint32 level = 0;
    /// The same number for all issues.
    quint32 everything = 0;
    /// The number of characters of the key.
    quint32 keyLength = 0;
    bool isClosed = false;
    /// Milliseconds since 1970.
    qint64 updated = 0;
    qint64 created = 0;
};

/// Returns the `fresh` list, with each record that equals one in `known` replaced by the record in `known`. A later
/// comparison of the lists finds identical objects and does not need to compare their fields.
IssueList reusingRecords(IssueList fresh, const IssueList &known);

/// A list of issues prepared for sorting, filtering and grouping. An update prepares only the records that have
/// changed.
class IssueIndex
{
public:
    /// Replaces the list. The prepared data of unchanged records is reused.
    void update(const IssueList &issues);

    const IssueList &issues() const { return m_issues; }
    const std::vector<IndexedIssue> &rows() const { return m_rows; }
    const SearchTexts &texts() const { return m_texts; }
    /// The position of each key in the list.
    const KeyIndex &keys() const { return m_keys; }

    /// The number of a status group, whether or not an issue is in it.
    quint32 statusNumber(const QString &groupKey) { return m_statuses.of(groupKey); }

private:
    /// For each issue the row that has the same texts in the list before; -1 if none has.
    using TextRows = std::vector<qsizetype>;

    IndexedIssue indexed(const Issue &issue);
    bool keepsTexts(const TextRows &rows) const;
    void referToKeysOf(const IssueList &issues);
    void updateTexts(const IssueList &issues, const TextRows &rows);
    void forgetNames();

    IssueList m_issues;
    std::vector<IndexedIssue> m_rows;
    SearchTexts m_texts;
    Ordinals m_statuses;
    Ordinals m_assignees;
    Ordinals m_projects;
    /// Refers to the memory of the records in `m_issues`.
    KeyIndex m_keys;
};
