#pragma once

#include "jira/SiteConnection.h"
#include "model/Issue.h"
#include "model/IssueScope.h"
#include "model/UserCalendar.h"

/// The operations that list issues. `now` stands for dates that are missing, and tells what period a recap covers. A
/// failure of one page fails the whole search.

/// The list of a scope; of a recap, what happened in its period.
QCoro::Task<IssueList> scopeIssues(SiteConnectionPtr connection, IssueScope scope, QDateTime now,
                                   UserCalendar calendar, std::stop_token stop);
/// What a typed text finds. A blank one finds nothing and asks nothing.
QCoro::Task<IssueList> textIssues(SiteConnectionPtr connection, QString text, QDateTime now,
                                  std::stop_token stop);
/// One issue with its details.
QCoro::Task<Issue> fullIssue(SiteConnectionPtr connection, QString key, QDateTime now,
                             std::stop_token stop);
