#pragma once

#include "richtext/ADFMarkdown.h"

namespace Markdown {

/// What the blocks of one text share.
struct BlockContext
{
    ADFMarkdown::LocalIDSource localID;
    /// True for the lines of a quote. A quote admits no quote, so one inside another is dropped without being parsed.
    bool insideQuote = false;
};

} // namespace Markdown
