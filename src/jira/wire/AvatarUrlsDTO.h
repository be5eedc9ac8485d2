#pragma once

#include <QString>

#include <optional>

/// The addresses of a picture by size. Jira names four of them for every user in every history; only those that the
/// program shows are kept.
struct AvatarUrlsDTO
{
    /// "48x48".
    std::optional<QString> large;
    /// "32x32".
    std::optional<QString> medium;
};
