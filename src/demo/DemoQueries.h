#pragma once

#include "demo/DemoSite.h"
#include "model/IssueScope.h"

#include <QDateTime>

/// The responses of a demo site: fixed rules that replace the query engine of a server. Issues that a rule does not
/// order are sorted by key.
namespace DemoQueries {

/// The issues of a scope. Closed issues are omitted from a project's `All` if they were not changed for 30 days, and
/// from the user's own issues after 14 days.
IssueList issues(const DemoSite &site, const IssueScope &scope, const QDateTime &now,
                 const UserCalendar &calendar);

/// The issues whose key, summary, labels or assignee contain the text, ignoring accents and case: at most 20, the
/// latest change first. Descriptions and comments are not searched.
IssueList search(const DemoSite &site, const QString &text);

/// The issue with its sub-tasks and attachments. Fails for an unknown key with `JiraError` 404.
Issue details(const DemoSite &site, const QString &key);

/// The transitions to every status except the issue's current one; none for an unknown key.
QList<WorkflowTransition> transitions(const DemoSite &site, const QString &key);

} // namespace DemoQueries
