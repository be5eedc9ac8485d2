#pragma once

#include "jira/wire/IssueDTO.h"
#include "jira/wire/WireMember.h"

#include <QList>
#include <QString>

#include <optional>
#include <tuple>

/// One page of the results of a search.
struct SearchResponseDTO
{
    QList<IssueDTO> issues;
    /// The token with which to request the next page.
    std::optional<QString> nextPageToken;
    std::optional<bool> isLast;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"issues", &SearchResponseDTO::issues, MostInPage},
                          WireMember{"nextPageToken", &SearchResponseDTO::nextPageToken},
                          WireMember{"isLast", &SearchResponseDTO::isLast});
    }
};
