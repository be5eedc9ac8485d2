#pragma once

#include "jira/RequestBody.h"
#include "jira/wire/CommentDTO.h"
#include "jira/wire/IssueDTO.h"
#include "jira/wire/ProjectDTO.h"
#include "jira/wire/StatusDTO.h"
#include "jira/wire/UserDTO.h"
#include "model/Comment.h"
#include "model/Issue.h"

#include <QList>
#include <QLocale>

#include <optional>

/// What the operations make of answers, where that is more than the mapping of each record.
namespace SiteAnswers {

/// Where the next page of projects starts, after a page that began at `startAt` and brought the list to `gathered`
/// projects. Nothing when the list is over: unless the page says that it is not the last, when it is empty, and from
/// 500 projects on.
std::optional<qsizetype> nextProjects(const ProjectSearchDTO &page, qsizetype startAt,
                                      qsizetype gathered);
/// The statuses of all types of a project, the first of each group key.
QList<IssueStatus> statuses(const QList<IssueTypeStatusesDTO> &types);
/// The active people, by name in the order of the locale: no application and no customer.
QList<JiraUser> assignableUsers(const QList<UserDTO> &users, const QLocale &locale);
/// The active users that are no application, in the server's order.
QList<JiraUser> foundUsers(const QList<UserDTO> &users);
/// The record of a single fetch, whose details are complete.
Issue detailedIssue(const IssueDTO &issue, const QDateTime &now);
/// A comment just written. The answer does not reliably say that a note is internal; what was sent does.
Comment storedComment(const CommentDTO &comment, CommentAudience audience, const QDateTime &now);

} // namespace SiteAnswers
