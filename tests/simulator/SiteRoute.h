#pragma once

#include "simulator/RawRequest.h"

#include <QString>
#include <QUrlQuery>

#include <optional>

/// What can be asked of the site by its interface.
enum class SiteOperation {
    Myself,
    Projects,
    Project,
    ProjectStatuses,
    PrioritySearch,
    Priorities,
    AssignableUsers,
    UserSearch,
    Search,
    ReadIssue,
    Comments,
    Transitions,
    Perform,
    Update,
    Assign,
    AddComment,
    Create,
    Upload,
    AttachmentContent,
    AttachmentThumbnail,
    DeleteAttachment,
};

/// A request's operation, and what it is about.
struct SiteRoute
{
    SiteOperation operation = SiteOperation::Myself;
    /// The key or identifier in the path, decoded; empty when there is none.
    QString subject;
    QUrlQuery query;

    /// The value of a query item, decoded; null when there is none.
    QString value(const QString &name) const;
    /// A number between 0 and `most`; the usual one when there is none.
    int number(const QString &name, int usual, int most) const;
};

/// Nothing when the interface has no such path, or not with this method.
std::optional<SiteRoute> routeOf(const RawRequest &request);
