#pragma once

/// Whether issues can be created, which requires a create screen.
enum class IssueCreation { Offered, Withheld };

/// The value for this program. While creation is withheld, no control offers it, because opening a missing screen would
/// only remove the keyboard focus.
inline constexpr IssueCreation issueCreation = IssueCreation::Withheld;
