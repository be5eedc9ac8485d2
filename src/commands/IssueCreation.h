#pragma once

/// Whether issues can be made, because there is a screen to make them on.
enum class IssueCreation { Offered, Withheld };

/// As it is in this program. While it is withheld, nothing offers it: asking for it would only take the keyboard away.
inline constexpr IssueCreation issueCreation = IssueCreation::Withheld;
