#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct SiteComment
{
    QString id;
    /// Account of who wrote it.
    QString author;
    QJsonObject body;
    QDateTime created;
    bool isInternal = false;
    /// The role that alone can read it; empty for all.
    QString role;
};

struct SiteAttachment
{
    QString id;
    /// The name under which documents show it.
    QString mediaId;
    QString filename;
    QString mimeType;
    QByteArray content;
    QDateTime created;
    QString author;
};

/// A change of one field. Statuses and users are told by id and by name, empty where there is none.
struct SiteChange
{
    QDateTime date;
    QString author;
    QString field;
    QString from;
    QString fromName;
    QString to;
    QString toName;
};

/// An issue of the simulated site. References go by id, by account or by key; empty ones are absent.
struct SiteIssue
{
    QString id;
    QString key;
    QString projectKey;
    QString typeId;
    QString statusId;
    QString priorityId;
    QString assignee;
    QString reporter;
    QString summary;
    QStringList labels;
    QDateTime created;
    QDateTime updated;
    std::optional<QDate> due;
    /// Empty when there is none.
    QJsonObject description;
    QString parentKey;
    QString sprintId;
    /// Lower comes first.
    int rank = 0;
    /// When the signed-in user last looked at it.
    std::optional<QDateTime> viewed;
    QList<SiteComment> comments;
    QList<SiteAttachment> attachments;
    /// Oldest first.
    QList<SiteChange> history;
};
