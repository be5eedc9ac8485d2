#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

/// A comment of an issue.
struct Comment
{
    QString id;
    std::optional<JiraUser> author;
    std::optional<ADFNode> body;
    QDateTime created;
    /// A note for the agents of a service project, not public.
    bool isInternal = false;
    /// The role or group that its visibility is restricted to.
    std::optional<QString> restrictedTo;
    /// The attachments that belong to this comment.
    QStringList attachmentIDs;

    bool operator==(const Comment &) const = default;
};
