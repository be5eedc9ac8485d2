#pragma once

#include "jira/SiteConnection.h"
#include "model/Issue.h"
#include "model/IssueScope.h"
#include "model/dates/UserCalendar.h"

/// The operations that list issues. `now` replaces missing dates and determines the period of a recap. If a page fails,
/// the whole search fails.

/// The issues of a scope; for a recap, only the issues with events in its period. If there are none, asks whether the
/// site still accepts the credentials, and fails with status 401 if it does not.
QCoro::Task<IssueList> scopeIssues(SiteConnectionPtr connection, IssueScope scope, QDateTime now,
                                   UserCalendar calendar, std::stop_token stop);
/// The issues found for a text that the user typed. A blank text gives an empty list without a request.
QCoro::Task<IssueList> textIssues(SiteConnectionPtr connection, QString text, QDateTime now,
                                  std::stop_token stop);
/// One issue with its details.
QCoro::Task<Issue> fullIssue(SiteConnectionPtr connection, QString key, QDateTime now,
                             std::stop_token stop);
