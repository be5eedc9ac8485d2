#pragma once

#include "model/Comment.h"
#include "model/Issue.h"

#include <QHash>

#include <optional>

/// The users whom a text about an issue can mention.
struct MentionSources
{
    /// Absent for an issue that is unknown or not created yet.
    std::optional<SharedIssue> issue;
    /// The issue's comments.
    QList<Comment> comments;
    /// The users to whom issues of the project can be assigned.
    QList<JiraUser> assignables;
    /// The entries of the filter menu of assignees.
    QList<JiraUser> availableAssignees;
    /// Every user received so far, by id.
    QHash<QString, JiraUser> knownUsers;
    std::optional<JiraUser> me;
};

/// The suggestions after an "@", each user once, in this order: assignee, reporter, authors of comments, assignable
/// users of the project, assignees of the list, all known users sorted by name in Unicode order, the current user.
QList<JiraUser> mentionCandidates(const MentionSources &sources);
