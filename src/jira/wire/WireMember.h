#pragma once

#include <string_view>

/// Ties a member of a JSON object to the field that holds it. A field that is a `std::optional` may be missing or null;
/// any other must be there.
template <typename DTO, typename Field>
struct WireMember
{
    std::string_view name;
    Field DTO::*field;
};

template <typename DTO, typename Field>
WireMember(const char *, Field DTO::*) -> WireMember<DTO, Field>;
