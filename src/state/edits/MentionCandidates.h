#pragma once

#include "model/Comment.h"
#include "model/Issue.h"

#include <QHash>

#include <optional>

/// Whom a text about an issue can mention.
struct MentionSources
{
    /// Absent for an issue that is not known, or not made yet.
    std::optional<SharedIssue> issue;
    /// The issue's.
    QList<Comment> comments;
    /// Who can take an issue of the project.
    QList<JiraUser> assignables;
    /// What the filter menus offer.
    QList<JiraUser> availableAssignees;
    /// Every user met so far, by id.
    QHash<QString, JiraUser> knownUsers;
    std::optional<JiraUser> me;
};

/// The users for the suggestions after an "@", the nearest first and each once: assignee, reporter, commenters, the
/// project's people, the list's, everybody known by name in Unicode order, the user.
QList<JiraUser> mentionCandidates(const MentionSources &sources);
