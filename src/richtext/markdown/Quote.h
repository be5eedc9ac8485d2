#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// Lines that start with ">". A quote keeps the paragraphs, bullet lists, ordered lists and code blocks in it; other
/// blocks are not allowed in a quote.
namespace Markdown::Quote {

bool begins(const Line &line);
void read(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks);

} // namespace Markdown::Quote
