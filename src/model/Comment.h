#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

/// A comment on an issue.
struct Comment
{
    QString id;
    std::optional<JiraUser> author;
    std::optional<ADFNode> body;
    QDateTime created;
    /// True for a comment that only the agents of a service project can see.
    bool isInternal = false;
    /// The name of the role or group that the comment is visible to; absent when visibility is not restricted.
    std::optional<QString> restrictedTo;
    /// The identifiers of the attachments that belong to this comment.
    QStringList attachmentIDs;

    bool operator==(const Comment &) const = default;
};
