#pragma once

#include "derivation/IssueDerivationSearch.h"
#include "derivation/KeyIndex.h"

#include <QHash>

#include <vector>

/// Numbers the distinct texts it is given, from 0. Numbers stay what they are.
class Ordinals
{
public:
    quint32 of(const QString &text);
    quint32 count() const { return quint32(m_numbers.size()); }

private:
    QHash<QString, quint32> m_numbers;
};

/// What grouping and filtering ask of an issue, as numbers, so that they need not visit the record.
struct IndexedIssue
{
    quint32 status = 0;
    quint32 assignee = 0;
    quint32 project = 0;
    quint32 level = 0;
    /// The same for all.
    quint32 everything = 0;
    bool isClosed = false;
};

/// The fresh list with the records of `known` in place of equal ones of its own, so that whoever compares the lists later
/// finds the same objects and looks no further.
IssueList reusingRecords(IssueList fresh, const IssueList &known);

/// A list of issues prepared for filtering and grouping. A new list costs work only for what is new in it.
class IssueIndex
{
public:
    /// Takes over the list; keeps what it knows of records that did not change.
    void update(const IssueList &issues);

    const IssueList &issues() const { return m_issues; }
    const std::vector<IndexedIssue> &rows() const { return m_rows; }
    const SearchTexts &texts() const { return m_texts; }
    /// Where each key stands in the list.
    const KeyIndex &keys() const { return m_keys; }

    /// The number of a status group, whether or not an issue is in it.
    quint32 statusNumber(const QString &groupKey) { return m_statuses.of(groupKey); }
    /// How many issues had their texts folded, ever.
    qsizetype foldedIssues() const { return m_foldedIssues; }

private:
    IndexedIssue indexed(const Issue &issue);
    void forgetNames();

    IssueList m_issues;
    std::vector<IndexedIssue> m_rows;
    SearchTexts m_texts;
    Ordinals m_statuses;
    Ordinals m_assignees;
    Ordinals m_projects;
    qsizetype m_foldedIssues = 0;
    /// Points into the records.
    KeyIndex m_keys;
};
