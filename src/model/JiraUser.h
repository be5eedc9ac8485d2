#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

/// A person.
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
    /// Present where the service discloses it.
    std::optional<QString> email;
    std::optional<QUrl> avatarURL;

    /// The first characters of the first two words, in upper case; "?" for an empty name.
    QString initials() const;
    /// The first word of the name, or the whole name.
    QString firstName() const;

    bool operator==(const JiraUser &) const = default;
};

size_t qHash(const JiraUser &user, size_t seed = 0);
