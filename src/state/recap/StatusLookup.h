#pragma once

#include "model/Issue.h"

#include <QHash>
#include <QString>

/// The sources of known statuses.
struct StatusSources
{
    /// The statuses of each loaded project, by project key.
    QHash<QString, QList<IssueStatus>> projectStatuses;
    /// The current list.
    IssueList issues;
    IssueList myOpenIssues;
};

/// Finds statuses by the names in an issue's history. Created once and used for many names.
class StatusLookup
{
public:
    /// A lookup that knows no statuses.
    StatusLookup() = default;
    explicit StatusLookup(const StatusSources &sources);

    /// The status whose group key is the folded name: from the project, else from any project, else from an issue. If
    /// there is none, a status guessed from the name. A name that is a synonym of its group key, such as "En cours", is
    /// always guessed, which gives the right group and category.
    IssueStatus named(const QString &name, const QString &projectKey) const;

    bool operator==(const StatusLookup &) const = default;

private:
    using ByGroupKey = QHash<QString, IssueStatus>;

    QHash<QString, ByGroupKey> m_ofProject;
    ByGroupKey m_ofAny;
};
