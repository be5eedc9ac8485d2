#pragma once

#include "richtext/ADFMarkdown.h"

namespace Markdown {

/// The parameters that all blocks of a text share.
struct BlockContext
{
    ADFMarkdown::LocalIDSource localID;
    /// True for the lines of a quote. A quote cannot contain quotes, so a nested one is dropped without being parsed.
    bool insideQuote = false;
};

} // namespace Markdown
