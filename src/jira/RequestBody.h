#pragma once

#include "model/ADFNode.h"
#include "model/IssueEdits.h"
#include "model/IssueStatus.h"
#include "model/JiraUser.h"

#include <QByteArray>

#include <optional>

/// Who can read a comment; internal ones are seen by the agents of a service project only.
enum class CommentAudience { Everyone, Agents };

/// The JSON that the edits of an issue send.
namespace RequestBody {

QByteArray transition(const WorkflowTransition &transition);
/// One field; an absent description or due date goes out as null, which clears it.
QByteArray update(const IssueFieldUpdate &update);
/// No user unassigns.
QByteArray assignee(const std::optional<JiraUser> &user);
QByteArray comment(const ADFNode &body, CommentAudience audience);
/// Only what the draft has; labels only when there are some.
QByteArray create(const IssueDraft &draft);

} // namespace RequestBody
