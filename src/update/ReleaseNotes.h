#pragma once

#include <QString>

#include <optional>

namespace ReleaseNotes {

/// The notes as plain text for a tooltip or an alert: without the marks of inline Markdown, and cut to 600 characters.
/// Absent if there are no notes or only blanks.
std::optional<QString> plain(const std::optional<QString> &notes);

} // namespace ReleaseNotes
