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
    /// The account of the author.
    QString author;
    QJsonObject body;
    QDateTime created;
    bool isInternal = false;
    /// The only role that can read it; empty if everybody can.
    QString role;
};

struct SiteAttachment
{
    QString id;
    /// The identifier that documents use for it.
    QString mediaId;
    QString filename;
    QString mimeType;
    QByteArray content;
    QDateTime created;
    QString author;
};

/// A change of one field. Statuses and users have an id and a name, which are empty if there is no value.
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

/// An issue of the simulated site. References to other records are ids, accounts or keys; an empty reference is absent.
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
    /// Empty if there is none.
    QJsonObject description;
    QString parentKey;
    QString sprintId;
    /// Issues with a lower rank come first.
    int rank = 0;
    /// The time at which the signed-in user last viewed it.
    std::optional<QDateTime> viewed;
    QList<SiteComment> comments;
    QList<SiteAttachment> attachments;
    /// The oldest change first.
    QList<SiteChange> history;
};
