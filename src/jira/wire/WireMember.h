#pragma once

#include <string_view>

/// Maps the member of a JSON object to the field that stores it. A `std::optional` field may be missing or null in the
/// JSON; any other field is required.
template <typename DTO, typename Field>
struct WireMember
{
    std::string_view name;
    Field DTO::*field;
};

template <typename DTO, typename Field>
WireMember(const char *, Field DTO::*) -> WireMember<DTO, Field>;
