#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// Code between two lines of three backticks; if the closing line is missing, the code extends to the end of the text.
namespace Markdown::CodeFence {

bool begins(const Line &line);
void read(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks);

} // namespace Markdown::CodeFence
