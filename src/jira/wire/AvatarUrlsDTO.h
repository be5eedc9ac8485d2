#pragma once

#include <QString>

#include <optional>

/// The addresses of a user's picture in several sizes. Jira sends four of them for every user in every history; only
/// the sizes that the program displays are kept.
struct AvatarUrlsDTO
{
    /// The member "48x48".
    std::optional<QString> large;
    /// The member "32x32"; absent if there is a larger one.
    std::optional<QString> medium;

    bool operator==(const AvatarUrlsDTO &) const = default;
};
