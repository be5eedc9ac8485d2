#pragma once

#include "model/ADFNode.h"
#include "model/IssueEdits.h"
#include "model/IssueStatus.h"
#include "model/JiraUser.h"

#include <QByteArray>

#include <optional>

/// The readers of a comment; internal comments are visible only to the agents of a service project.
enum class CommentAudience { Everyone, Agents };

/// The JSON bodies of the requests that change issues.
namespace RequestBody {

/// The body that performs a transition.
QByteArray transition(const WorkflowTransition &transition);
/// The body for one changed field; an absent description or due date is sent as null, which clears the field.
QByteArray update(const IssueFieldUpdate &update);
/// The body for an assignment; an absent user unassigns the issue.
QByteArray assignee(const std::optional<JiraUser> &user);
/// The body for a new comment.
QByteArray comment(const ADFNode &body, CommentAudience audience);
/// The body for a new issue, with only the fields that the draft contains; labels are included only if there are any.
QByteArray create(const IssueDraft &draft);

} // namespace RequestBody
