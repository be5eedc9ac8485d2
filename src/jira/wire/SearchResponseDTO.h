#pragma once

#include "jira/wire/IssueDTO.h"
#include "jira/wire/WireMember.h"

#include <QList>
#include <QString>

#include <optional>
#include <tuple>

/// One page of a search.
struct SearchResponseDTO
{
    QList<IssueDTO> issues;
    /// What to send to get the page after this one.
    std::optional<QString> nextPageToken;
    std::optional<bool> isLast;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"issues", &SearchResponseDTO::issues},
                          WireMember{"nextPageToken", &SearchResponseDTO::nextPageToken},
                          WireMember{"isLast", &SearchResponseDTO::isLast});
    }
};
