#pragma once

#include "demo/DemoSeedRow.h"

#include <QString>

#include <optional>
#include <span>
#include <string_view>

namespace DemoSeed {

/// A comment as it is written down.
struct CommentText
{
    std::u16string_view issueKey;
    Person author;
    /// How long before the demo's start it was written; not bound to the age of its issue.
    int hoursAgo;
    bool isInternal;
    /// The group that may read it; empty for everybody.
    std::u16string_view restrictedTo;
    /// Markdown.
    std::u16string_view text;
};

/// All comments; those of one issue stand oldest first.
std::span<const CommentText> commentTexts();

/// The Markdown of an issue's description: its own text, or one made from the title for an issue that has none.
QString descriptionText(std::u16string_view key, std::u16string_view title);

} // namespace DemoSeed
