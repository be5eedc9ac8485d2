#pragma once

#include "jira/wire/WireMember.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <tuple>

/// The body of a failed answer.
struct JiraErrorDTO
{
    std::optional<QStringList> errorMessages;
    /// Messages by the name of the field that they are about.
    std::optional<QMap<QString, QString>> errors;
    std::optional<QString> message;

    /// One line for each message: the general ones, those of fields by name ("summary : …"), then `message`.
    QString text() const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"errorMessages", &JiraErrorDTO::errorMessages},
                          WireMember{"errors", &JiraErrorDTO::errors},
                          WireMember{"message", &JiraErrorDTO::message});
    }
};
