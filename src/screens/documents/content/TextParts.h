#pragma once

#include "screens/documents/content/ADFInline.h"

#include <vector>

/// Long texts are laid out in parts of at most this number of characters, so that no text takes long to show.
constexpr qsizetype longestTextPart = 4000;

struct TextPart
{
    InlineRuns runs;
    /// What separates the part from the previous one: nothing, or the line feed at which the text was divided.
    QString joint;
};

/// Divides runs into parts, at a line feed or a space if there is one in the second half of a part, and never inside a
/// character. There is always at least one part.
std::vector<TextPart> textParts(const InlineRuns &runs);
