#include "state/recap/StatusLookup.h"

#include "model/TextFolding.h"

namespace {

void addFirst(QHash<QString, IssueStatus> &statuses, const IssueStatus &status)
{
    if (!statuses.contains(status.groupKey()))
        statuses.insert(status.groupKey(), status);
}

} // namespace

StatusLookup::StatusLookup(const StatusSources &sources)
{
    // If several projects have the status, the project whose key sorts first is used, so that the result is the same in
    // every run.
    QStringList projectKeys = sources.projectStatuses.keys();
    projectKeys.sort();
    for (const QString &projectKey : std::as_const(projectKeys)) {
        for (const IssueStatus &status : *sources.projectStatuses.constFind(projectKey)) {
            addFirst(m_ofProject[projectKey], status);
            addFirst(m_ofAny, status);
        }
    }
    for (const IssueList &issues : {sources.issues, sources.myOpenIssues}) {
        for (const SharedIssue &issue : issues)
            addFirst(m_ofAny, issue->status);
    }
}

IssueStatus StatusLookup::named(const QString &name, const QString &projectKey) const
{
    const QString key = folded(name);
    const auto project = m_ofProject.constFind(projectKey);
    const ByGroupKey &ofProject = project == m_ofProject.cend() ? m_ofAny : *project;
    for (const ByGroupKey *statuses : {&ofProject, &m_ofAny}) {
        if (const auto found = statuses->constFind(key); found != statuses->cend())
            return *found;
    }
    return IssueStatus::guessed(name);
}
