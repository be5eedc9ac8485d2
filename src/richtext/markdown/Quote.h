#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// Lines behind ">". Keeps the paragraphs, bullet and ordered lists and code blocks in them; a quote admits nothing else.
namespace Markdown::Quote {

bool begins(const Line &line);
QList<ADFNode> read(LineCursor &lines, const BlockContext &context);

} // namespace Markdown::Quote
