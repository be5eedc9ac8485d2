#pragma once

#include <QtGlobal>

#include <limits>
#include <string_view>

/// Maps the member of a JSON object to the field that stores it. A `std::optional` field may be missing or null in the
/// JSON; any other field is required.
template <typename DTO, typename Field>
struct WireMember
{
    std::string_view name;
    Field DTO::*field;
    /// The maximum length of a list. Pages of results are refused beyond ten times the largest page that is requested,
    /// before their records are created.
    qsizetype most = std::numeric_limits<qsizetype>::max();
};

template <typename DTO, typename Field>
WireMember(const char *, Field DTO::*) -> WireMember<DTO, Field>;
template <typename DTO, typename Field>
WireMember(const char *, Field DTO::*, qsizetype) -> WireMember<DTO, Field>;

/// The `most` of a page of results.
inline constexpr qsizetype MostInPage = 1000;
