#include "demo/DemoSeed.h"

#include "demo/DemoSeedHistory.h"
#include "demo/DemoSeedRows.h"
#include "demo/DemoSeedTexts.h"
#include "richtext/ADFMarkdown.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace DemoSeed {

namespace {

constexpr qint64 secondsPerDay = 86'400;

QString text(std::u16string_view view)
{
    return QStringView(view).toString();
}

QString idOf(const Row &row)
{
    return u"id-"_s + text(row.key);
}

const IssueStatus &statusOf(const Row &row)
{
    return statuses().at(qsizetype(row.status));
}

const IssueType &typeOf(const Row &row)
{
    return issueTypes().at(qsizetype(row.type));
}

std::optional<IssuePriority> priorityOf(const Row &row)
{
    if (!row.priority)
        return std::nullopt;
    return priorities().at(qsizetype(*row.priority));
}

std::optional<JiraUser> assigneeOf(const Row &row)
{
    if (!row.assignee)
        return std::nullopt;
    return user(*row.assignee);
}

/// The user is the reporter of every third issue; the other issues are distributed over the team in turn.
const JiraUser &reporterAt(qsizetype index)
{
    return index % 3 == 0 ? me() : users().at((index + 1) % users().size());
}

std::optional<IssueRef> parentOf(const Row &row)
{
    const auto parent = std::ranges::find(rows(), row.parent, &Row::key);
    if (parent == rows().end())
        return std::nullopt;
    return IssueRef{idOf(*parent), text(parent->key), text(parent->title), statusOf(*parent),
                    typeOf(*parent)};
}

QDateTime updatedAt(const Row &row, const QDateTime &now)
{
    return now.addMSecs(-qRound64(row.updatedDaysAgo * double(secondsPerDay * 1000)));
}

/// Every issue was created 3 to 11 days before its last change.
QDateTime createdAt(qsizetype index, const QDateTime &updated)
{
    return updated.addSecs(-(index % 9 + 3) * secondsPerDay);
}

std::optional<QDate> dueDay(const Row &row, const QDateTime &now, const UserCalendar &calendar)
{
    if (!row.due)
        return std::nullopt;
    return calendar.day(now.addSecs(*row.due * secondsPerDay));
}

Issue makeIssue(qsizetype index, const QDateTime &now, const UserCalendar &calendar,
                const NewID &newID)
{
    const Row &row = rows()[size_t(index)];
    Issue issue;
    issue.id = idOf(row);
    issue.key = text(row.key);
    issue.summary = text(row.title);
    issue.status = statusOf(row);
    issue.priority = priorityOf(row);
    issue.assignee = assigneeOf(row);
    issue.reporter = reporterAt(index);
    issue.labels = text(row.labels).split(u' ', Qt::SkipEmptyParts);
    issue.type = typeOf(row);
    issue.projectKey = issue.key.section(u'-', 0, 0);
    issue.updated = updatedAt(row, now);
    issue.created = createdAt(index, issue.updated);
    issue.dueDate = dueDay(row, now, calendar);
    issue.description = ADFMarkdown::document(descriptionText(row.key, row.title), newID);
    issue.parent = parentOf(row);
    return issue;
}

Comment makeComment(const CommentText &source, const QDateTime &now, const NewID &newID)
{
    Comment comment;
    comment.id = newID();
    comment.author = user(source.author);
    comment.body = ADFMarkdown::document(text(source.text), newID);
    comment.created = now.addSecs(qint64(source.hoursAgo) * -3600);
    comment.isInternal = source.isInternal;
    if (!source.restrictedTo.empty())
        comment.restrictedTo = text(source.restrictedTo);
    return comment;
}

QList<Issue> makeIssues(const QDateTime &now, const UserCalendar &calendar, const NewID &newID)
{
    QList<Issue> issues;
    for (qsizetype index = 0; index < std::ssize(rows()); ++index)
        issues.append(makeIssue(index, now, calendar, newID));
    return issues;
}

QSet<QString> sprintKeys()
{
    QSet<QString> keys;
    for (const Row &row : rows()) {
        if (row.planning == Planning::Sprint)
            keys.insert(text(row.key));
    }
    return keys;
}

QHash<QString, QList<Comment>> makeThreads(const QDateTime &now, const NewID &newID)
{
    QHash<QString, QList<Comment>> threads;
    for (const CommentText &source : commentTexts())
        threads[text(source.issueKey)].append(makeComment(source, now, newID));
    return threads;
}

QHash<QString, QList<ActivityEvent>> makeEvents(const QList<Issue> &issues)
{
    QHash<QString, QList<ActivityEvent>> events;
    for (const Issue &issue : issues)
        events.insert(issue.key, history(issue));
    return events;
}

QStringList recentlyOpened()
{
    return {u"MOB-101"_s, u"SUP-41"_s, u"WEB-202"_s, u"WEB-205"_s, u"DS-32"_s, u"MOB-104"_s};
}

} // namespace

Seed make(const QDateTime &now, const UserCalendar &calendar, const NewID &newID)
{
    Seed seed;
    seed.issues = makeIssues(now, calendar, newID);
    seed.sprint = sprintKeys();
    seed.threads = makeThreads(now, newID);
    seed.recentKeys = recentlyOpened();
    seed.events = makeEvents(seed.issues);
    return seed;
}

} // namespace DemoSeed
