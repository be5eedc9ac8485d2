#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

/// A user of the site.
struct JiraUser
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString initials READ initials CONSTANT FINAL)

public:
    /// Jira's account identifier.
    QString id;
    QString name;
    /// Absent if the service does not disclose it.
    std::optional<QString> email;
    std::optional<QUrl> avatarURL;

    /// The first characters of the first two words of the name, in upper case; "?" for an empty name.
    QString initials() const;
    /// The first word of the name; the whole name if there is none.
    QString firstName() const;

    bool operator==(const JiraUser &) const = default;
};

size_t qHash(const JiraUser &user, size_t seed = 0);
