#pragma once

#include "model/JiraUser.h"

#include <QDateTime>
#include <QString>
#include <QUrl>

#include <optional>

/// A file attached to an issue.
struct Attachment
{
    QString id;
    /// The name as uploaded.
    QString filename;
    QString mimeType;
    /// In bytes.
    qint64 size = 0;
    QDateTime created;
    std::optional<JiraUser> author;
    std::optional<QUrl> contentURL;
    std::optional<QUrl> thumbnailURL;

    bool operator==(const Attachment &) const = default;
};
