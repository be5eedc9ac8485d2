#pragma once

#include "model/IssueType.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

/// A project of the site.
struct Project
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString key MEMBER key CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(bool isServiceDesk MEMBER isServiceDesk CONSTANT FINAL)

public:
    QString id;
    /// The part of an issue's key before the dash.
    QString key;
    QString name;
    std::optional<QUrl> avatarURL;
    /// The issue types that can be created in the project; empty until the details of the project were fetched.
    QList<IssueType> issueTypes;
    /// True for a service project, in which comments can be internal.
    bool isServiceDesk = false;

    bool operator==(const Project &) const = default;
};

size_t qHash(const Project &project, size_t seed = 0);
