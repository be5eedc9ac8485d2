#pragma once

#include "model/Issue.h"

#include <QHash>
#include <QString>

/// Where statuses are known from.
struct StatusSources
{
    /// The statuses of each loaded project, by project key.
    QHash<QString, QList<IssueStatus>> projectStatuses;
    /// The list being looked at.
    IssueList issues;
    IssueList myOpenIssues;
};

/// Finds statuses by the names that an issue's history spells. Made once for many names.
class StatusLookup
{
public:
    /// Knows no status.
    StatusLookup() = default;
    explicit StatusLookup(const StatusSources &sources);

    /// The status whose group key is the folded name: of the project, else of any project, else of an issue; when there
    /// is none, one guessed from the name. A name that is a synonym of its group key, such as "En cours", is always
    /// guessed, which gives the right group and category.
    IssueStatus named(const QString &name, const QString &projectKey) const;

    bool operator==(const StatusLookup &) const = default;

private:
    using ByGroupKey = QHash<QString, IssueStatus>;

    QHash<QString, ByGroupKey> m_ofProject;
    ByGroupKey m_ofAny;
};
