#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// Verbatim lines between two lines of three backticks; to the end of the text when it is never closed.
namespace Markdown::CodeFence {

bool begins(const Line &line);
QList<ADFNode> read(LineCursor &lines, const BlockContext &context);

} // namespace Markdown::CodeFence
