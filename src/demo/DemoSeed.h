#pragma once

#include "demo/DemoSeedRow.h"
#include "model/ActivityEvent.h"
#include "model/Comment.h"
#include "model/Issue.h"
#include "model/Project.h"
#include "model/UserCalendar.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

/// The made-up data that every demo starts from. Its dates are relative to the demo's start, so it always looks fresh.
namespace DemoSeed {

/// Gives an identifier unlike any before.
using NewID = std::function<QString()>;

/// What changes during a demo, as it is at the start.
struct Seed
{
    /// In the order of the table of rows.
    QList<Issue> issues;
    /// The keys of the issues of the running sprint.
    QSet<QString> sprint;
    /// The comments by issue key, oldest first.
    QHash<QString, QList<Comment>> threads;
    /// The keys of the issues opened lately, the latest first.
    QStringList recentKeys;
    /// The change log by issue key.
    QHash<QString, QList<ActivityEvent>> events;
};

/// The signed-in user of the demo, with the identifier "u-me".
const JiraUser &me();
/// Everybody who can take an issue; `me()` first.
const QList<JiraUser> &users();
/// The customer of the service project, who can be mentioned but takes no issues.
const JiraUser &customer();
const JiraUser &user(Person person);
/// The workflow, from the backlog to the closed statuses.
const QList<IssueStatus> &statuses();
/// From the most to the least pressing.
const QList<IssuePriority> &priorities();
const QList<IssueType> &issueTypes();
const QList<Project> &projects();

/// Makes the data as of `now`; due dates are days of the user's calendar. `newID` names comments and task lists; the
/// rest depends on nothing but the instant and the calendar.
Seed make(const QDateTime &now, const UserCalendar &calendar, const NewID &newID);

} // namespace DemoSeed
