#include "demo/DemoSeedHistory.h"

#include "demo/DemoSeed.h"

namespace DemoSeed {

namespace {

/// One step in the history that leads to the current status.
struct Step
{
    /// When it happened, as a fraction of the time between the creation (0) and the last change (1).
    double at;
    QString from;
    QString to;
};

QString statusName(RowStatus status)
{
    return statuses().at(qsizetype(status)).name();
}

bool isInReview(const IssueStatus &status)
{
    return status.progress() > 0.5;
}

QList<Step> throughWork(double workBegan, const QString &last)
{
    const QString work = statusName(RowStatus::InProgress);
    return {{workBegan, statusName(RowStatus::Todo), work}, {1, work, last}};
}

QList<Step> steps(const IssueStatus &status)
{
    switch (status.category()) {
    case StatusCategory::Backlog:
    case StatusCategory::Todo:
        return {};
    case StatusCategory::InProgress:
        return isInReview(status) ? throughWork(0.3, status.name())
                                  : QList<Step>{{1, statusName(RowStatus::Todo), status.name()}};
    case StatusCategory::Done:
        return throughWork(0.4, status.name());
    case StatusCategory::Cancelled:
        return {{1, statusName(RowStatus::Backlog), status.name()}};
    }
    Q_UNREACHABLE();
}

QDateTime instant(const Issue &issue, double at)
{
    return issue.created.addMSecs(qRound64(at * double(issue.created.msecsTo(issue.updated))));
}

} // namespace

QList<ActivityEvent> history(const Issue &issue)
{
    const std::optional<JiraUser> actor = issue.assignee ? issue.assignee : issue.reporter;
    QList<ActivityEvent> events{{issue.created, issue.reporter, ActivityEvent::Created{}}};
    for (const Step &step : steps(issue.status))
        events.append(
            {instant(issue, step.at), actor, ActivityEvent::StatusChanged{step.from, step.to}});
    return events;
}

} // namespace DemoSeed
