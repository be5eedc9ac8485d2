#pragma once

#include "demo/DemoSeedRow.h"

#include <QString>

#include <optional>
#include <span>
#include <string_view>

namespace DemoSeed {

/// The definition of a comment.
struct CommentText
{
    std::u16string_view issueKey;
    Person author;
    /// The time between the comment and the start of the demo, in hours; independent of the age of the issue.
    int hoursAgo;
    bool isInternal;
    /// The group that can read it; empty for everybody.
    std::u16string_view restrictedTo;
    /// The text in Markdown.
    std::u16string_view text;
};

/// All comments; those on the same issue are in order, the oldest first.
std::span<const CommentText> commentTexts();

/// The description of an issue in Markdown: its own text, or a text made from the title if it has none.
QString descriptionText(std::u16string_view key, std::u16string_view title);

} // namespace DemoSeed
