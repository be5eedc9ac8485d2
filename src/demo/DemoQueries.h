#pragma once

#include "demo/DemoSite.h"
#include "model/IssueScope.h"

#include <QDateTime>

/// What a demo's site answers: the fixed rules that stand in for a server's query engine. What a
/// list cannot tell apart stands in the order of the keys.
namespace DemoQueries {

/// The list of a scope. Closed issues leave a project's `All` when they did not change for 30 days, and the user's own
/// issues after 14.
IssueList issues(const DemoSite &site, const IssueScope &scope, const QDateTime &now,
                 const UserCalendar &calendar);

/// The issues whose key, summary, labels or assignee contain the text, accents and case aside: at most 20, the latest
/// changed first. Descriptions and comments are not searched.
IssueList search(const DemoSite &site, const QString &text);

/// The issue with its sub-tasks and attachments. An unknown key fails with `JiraError` 404.
Issue details(const DemoSite &site, const QString &key);

/// The way to each status but the issue's own; none for an unknown key.
QList<WorkflowTransition> transitions(const DemoSite &site, const QString &key);

} // namespace DemoQueries
