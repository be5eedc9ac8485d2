#pragma once

#include "simulator/server/RawRequest.h"

#include <QString>
#include <QUrlQuery>

#include <optional>

/// The operations of the site's interface.
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

/// The operation of a request and its arguments.
struct SiteRoute
{
    SiteOperation operation = SiteOperation::Myself;
    /// The decoded key or identifier in the path; empty if there is none.
    QString subject;
    QUrlQuery query;

    /// The decoded value of a query parameter; null if there is none.
    QString value(const QString &name) const;
    /// A number limited to the range from 0 to `most`; `usual` is the default.
    int number(const QString &name, int usual, int most) const;
};

/// Nothing if the interface has no such path or does not support the method for it.
std::optional<SiteRoute> routeOf(const RawRequest &request);
