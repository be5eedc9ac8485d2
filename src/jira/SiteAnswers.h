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

/// Processing of responses beyond the mapping of single records.
namespace SiteAnswers {

/// The index of the first project of the next page, after a page that began at `startAt` and increased the list to
/// `gathered` projects. Nothing if the list is complete: if the page does not state that more pages follow, if it is
/// empty, or once there are 500 projects.
std::optional<qsizetype> nextProjects(const ProjectSearchDTO &page, qsizetype startAt,
                                      qsizetype gathered);
/// The statuses of all issue types of a project; of those with the same group key, only the first.
QList<IssueStatus> statuses(const QList<IssueTypeStatusesDTO> &types);
/// The active human users, without apps and customers, ordered by name in the locale.
QList<JiraUser> assignableUsers(const QList<UserDTO> &users, const QLocale &locale);
/// The active users that are not apps, in the order of the server.
QList<JiraUser> foundUsers(const QList<UserDTO> &users);
/// The record of an issue that was fetched individually, with `hasDetails` set.
Issue detailedIssue(const IssueDTO &issue, const QDateTime &now);
/// The record of a comment that was just added. Its visibility is taken from the request, because the response does not
/// report it reliably.
Comment storedComment(const CommentDTO &comment, CommentAudience audience, const QDateTime &now);

} // namespace SiteAnswers
