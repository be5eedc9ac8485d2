#pragma once

#include "jira/JiraRequest.h"
#include "jira/RequestBody.h"

/// The requests of the operations that are no search.
namespace SiteRequests {

JiraRequest currentUser();
/// One page of 100 projects, by name, from the project of index `startAt` on.
JiraRequest projects(qsizetype startAt);
JiraRequest project(const QString &key);
JiraRequest statuses(const QString &projectKey);
/// The paged form, of which one page is read. Not every site has it.
JiraRequest priorities();
/// What to ask when `priorities` fails in any way.
JiraRequest prioritiesOfOlderSites();
JiraRequest assignableUsers(const QString &projectKey);
JiraRequest searchUsers(const QString &query);

/// The issue with its document and attachments, and the HTML that ties the two.
JiraRequest issue(const QString &key);
/// The first 100 comments, oldest first, with the HTML that ties media to attachments.
JiraRequest comments(const QString &key);
JiraRequest transitions(const QString &key);
JiraRequest perform(const WorkflowTransition &transition, const QString &key);
JiraRequest update(const QString &key, const IssueFieldUpdate &update);
JiraRequest assign(const QString &key, const std::optional<JiraUser> &user);
JiraRequest addComment(const QString &key, const ADFNode &body, CommentAudience audience);
JiraRequest create(const IssueDraft &draft);
/// Where uploads go. The form is not part of it.
JiraRequest attachments(const QString &key);
JiraRequest deleteAttachment(const QString &id);

} // namespace SiteRequests
