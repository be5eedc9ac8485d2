#pragma once

#include "jira/wire/WireMember.h"

#include <QString>

#include <tuple>

/// The response to the creation of an issue.
struct CreatedIssueDTO
{
    QString id;
    QString key;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &CreatedIssueDTO::id},
                          WireMember{"key", &CreatedIssueDTO::key});
    }
};
