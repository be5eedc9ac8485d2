#include "demo/DemoQueries.h"

#include "model/JiraError.h"
#include "model/TextFolding.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace DemoQueries {

namespace {

template <typename Keep>
IssueList kept(const DemoSite &site, Keep keep)
{
    IssueList result;
    std::ranges::copy_if(site.store, std::back_inserter(result),
                         [&](const SharedIssue &issue) { return keep(*issue); });
    return result;
}

/// Sorts by a rank, and issues of equal rank by key, which is the order of the store. The result is that of a stable
/// sort.
template <typename Rank>
IssueList sorted(IssueList issues, Rank rank)
{
    std::ranges::sort(
        issues, {}, [&](const SharedIssue &issue) { return std::pair(rank(*issue), issue->key); });
    return issues;
}

IssueList latestFirst(const IssueList &issues, QDateTime Issue::*date)
{
    return sorted(issues, [date](const Issue &i) { return -(i.*date).toMSecsSinceEpoch(); });
}

IssueList byNumber(const IssueList &issues)
{
    return sorted(issues, [](const Issue &issue) { return keyNumber(issue.key); });
}

bool isMine(const std::optional<JiraUser> &person)
{
    return person && person->id == DemoSeed::me().id;
}

bool isClosed(const Issue &issue)
{
    return ::isClosed(issue.status.category());
}

bool isOpenOrChangedAfter(const Issue &issue, const QDateTime &limit)
{
    return !isClosed(issue) || issue.updated > limit;
}

bool countsAsMine(const ActivityEvent &event, const Issue &issue)
{
    return isMine(event.author) || (event.statusChange() && isMine(issue.assignee));
}

QList<ActivityEvent> eventsIn(const DateInterval &interval, const QList<ActivityEvent> &events)
{
    QList<ActivityEvent> result;
    std::ranges::copy_if(events, std::back_inserter(result),
                         [&](const ActivityEvent &e) { return interval.contains(e.date); });
    return result;
}

bool belongsToRecap(const Issue &issue, const QList<ActivityEvent> &events, bool teamWide)
{
    if (events.isEmpty())
        return false;
    return teamWide || std::ranges::any_of(events, [&](const ActivityEvent &event) {
               return countsAsMine(event, issue);
           });
}

/// Computes the list for each kind of scope.
struct ListOfScope
{
    const DemoSite &site;
    const QDateTime &now;
    const UserCalendar &calendar;

    IssueList operator()(const IssueScope::MyIssues &) const
    {
        constexpr int daysAfterClosing = 14;
        return latestFirst(kept(site,
                                [limit = now.addDays(-daysAfterClosing)](const Issue &issue) {
                                    return isMine(issue.assignee) &&
                                           isOpenOrChangedAfter(issue, limit);
                                }),
                           &Issue::updated);
    }

    IssueList operator()(const IssueScope::Recent &) const
    {
        IssueList result;
        for (const QString &key : site.history) {
            if (const auto found = site.store.constFind(key); found != site.store.cend())
                result.append(*found);
        }
        return result;
    }

    IssueList operator()(const IssueScope::Reported &) const
    {
        return latestFirst(kept(site, [](const Issue &issue) { return isMine(issue.reporter); }),
                           &Issue::created);
    }

    IssueList operator()(const IssueScope::InProject &project) const
    {
        switch (project.view) {
        case ProjectView::All:
            return wholeProject(project.key);
        case ProjectView::Active:
            return runningSprint(project.key);
        case ProjectView::Backlog:
            return backlog(project.key);
        }
        Q_UNREACHABLE();
    }

    IssueList operator()(const IssueScope::Activity &activity) const
    {
        const DateInterval interval = activity.period.interval(now, calendar);
        IssueList result;
        for (const SharedIssue &issue : site.store) {
            const QList<ActivityEvent> events = eventsIn(interval, site.events.value(issue->key));
            if (!belongsToRecap(*issue, events, activity.period.teamWide))
                continue;
            Issue copy = *issue;
            copy.activity = events;
            result.append(std::move(copy));
        }
        return result;
    }

    IssueList wholeProject(const QString &key) const
    {
        constexpr int daysAfterClosing = 30;
        return latestFirst(kept(site,
                                [&key, limit = now.addDays(-daysAfterClosing)](const Issue &issue) {
                                    return issue.projectKey == key &&
                                           isOpenOrChangedAfter(issue, limit);
                                }),
                           &Issue::updated);
    }

    IssueList runningSprint(const QString &key) const
    {
        return byNumber(kept(site, [&](const Issue &issue) {
            return issue.projectKey == key && site.sprint.contains(issue.key);
        }));
    }

    IssueList backlog(const QString &key) const
    {
        return byNumber(kept(site, [&](const Issue &issue) {
            return issue.projectKey == key && !site.sprint.contains(issue.key) && !isClosed(issue);
        }));
    }
};

bool matches(const Issue &issue, const QString &text)
{
    const auto contains = [&](const QString &field) { return localizedContains(field, text); };
    return contains(issue.key) || contains(issue.summary) ||
           std::ranges::any_of(issue.labels, contains) ||
           (issue.assignee && contains(issue.assignee->name));
}

QList<IssueRef> subtasksOf(const DemoSite &site, const QString &key)
{
    const IssueList children = byNumber(
        kept(site, [&](const Issue &issue) { return issue.parent && issue.parent->key == key; }));
    QList<IssueRef> refs;
    for (const SharedIssue &child : children)
        refs.append({child->id, child->key, child->summary, child->status, child->type});
    return refs;
}

} // namespace

IssueList issues(const DemoSite &site, const IssueScope &scope, const QDateTime &now,
                 const UserCalendar &calendar)
{
    return std::visit(ListOfScope{site, now, calendar}, scope.value());
}

IssueList search(const DemoSite &site, const QString &text)
{
    constexpr qsizetype mostMatches = 20;
    const IssueList matching = latestFirst(
        kept(site, [&](const Issue &issue) { return matches(issue, text); }), &Issue::updated);
    return matching.mid(0, mostMatches);
}

Issue details(const DemoSite &site, const QString &key)
{
    const Issue *stored = site.find(key);
    if (!stored)
        throw JiraError(JiraError::Http{404, u"Le ticket "_s + key + u" n'existe pas."_s});
    Issue issue = *stored;
    issue.hasDetails = true;
    issue.attachments = site.files.value(key);
    issue.subtasks = subtasksOf(site, key);
    return issue;
}

QList<WorkflowTransition> transitions(const DemoSite &site, const QString &key)
{
    const Issue *issue = site.find(key);
    if (!issue)
        return {};
    QList<WorkflowTransition> result;
    for (const IssueStatus &status : DemoSeed::statuses()) {
        if (status.id() != issue->status.id())
            result.append({u't' + status.id(), status.name(), status});
    }
    return result;
}

} // namespace DemoQueries
