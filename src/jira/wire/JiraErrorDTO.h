#pragma once

#include "jira/wire/WireMember.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <tuple>

/// The body of an error response.
struct JiraErrorDTO
{
    std::optional<QStringList> errorMessages;
    /// Maps the name of a field to the message about it.
    std::optional<QMap<QString, QString>> errors;
    std::optional<QString> message;

    /// All messages, one per line: the general ones, then those of fields, ordered by name ("summary : …"), then
    /// `message`.
    QString text() const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"errorMessages", &JiraErrorDTO::errorMessages},
                          WireMember{"errors", &JiraErrorDTO::errors},
                          WireMember{"message", &JiraErrorDTO::message});
    }
};
