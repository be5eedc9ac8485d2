#pragma once

#include "jira/JiraRequest.h"
#include "jira/RequestBody.h"

/// The requests of all operations except searches.
namespace SiteRequests {

JiraRequest currentUser();
/// A page of 100 projects, ordered by name, starting at the index `startAt`.
JiraRequest projects(qsizetype startAt);
JiraRequest project(const QString &key);
JiraRequest statuses(const QString &projectKey);
/// The paged list of priorities, of which only the first page is read. Some sites do not support it.
JiraRequest priorities();
/// The request to send if `priorities` fails for any reason.
JiraRequest prioritiesOfOlderSites();
JiraRequest assignableUsers(const QString &projectKey);
JiraRequest searchUsers(const QString &query);

/// The issue with its description and attachments, and with the HTML that relates the two.
JiraRequest issue(const QString &key);
/// The first 100 comments, the oldest first, with the HTML that relates media to attachments.
JiraRequest comments(const QString &key);
JiraRequest transitions(const QString &key);
JiraRequest perform(const WorkflowTransition &transition, const QString &key);
JiraRequest update(const QString &key, const IssueFieldUpdate &update);
JiraRequest assign(const QString &key, const std::optional<JiraUser> &user);
JiraRequest addComment(const QString &key, const ADFNode &body, CommentAudience audience);
JiraRequest create(const IssueDraft &draft);
/// The request for an upload, without the form.
JiraRequest attachments(const QString &key);
JiraRequest deleteAttachment(const QString &id);

} // namespace SiteRequests
