#pragma once

#include "demo/DemoSeedRow.h"
#include "model/ActivityEvent.h"
#include "model/Comment.h"
#include "model/Issue.h"
#include "model/Project.h"
#include "model/dates/UserCalendar.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

/// The fictitious data that every demo starts with. Its dates are relative to the start of the demo, so they are always
/// recent.
namespace DemoSeed {

/// Returns an identifier that was not returned before.
using NewID = std::function<QString()>;

/// The initial state of the data that can change during a demo.
struct Seed
{
    /// In the order of the table of rows.
    QList<Issue> issues;
    /// The keys of the issues of the running sprint.
    QSet<QString> sprint;
    /// The comments by issue key, oldest first.
    QHash<QString, QList<Comment>> threads;
    /// The keys of the recently opened issues, the latest first.
    QStringList recentKeys;
    /// The change log by issue key.
    QHash<QString, QList<ActivityEvent>> events;
};

/// The signed-in user of the demo, with the identifier "u-me".
const JiraUser &me();
/// All users to whom issues can be assigned; `me()` is the first.
const QList<JiraUser> &users();
/// The customer of the service project, who can be mentioned but not be assigned issues.
const JiraUser &customer();
/// The user record of a person of the demo.
const JiraUser &user(Person person);
/// The workflow, from the backlog to the closed statuses.
const QList<IssueStatus> &statuses();
/// From the most urgent to the least urgent.
const QList<IssuePriority> &priorities();
const QList<IssueType> &issueTypes();
const QList<Project> &projects();

/// Creates the data as of `now`; due dates are days of the user's calendar. `newID` provides the ids of comments and
/// task lists; everything else depends only on the time and the calendar.
Seed make(const QDateTime &now, const UserCalendar &calendar, const NewID &newID);

} // namespace DemoSeed
