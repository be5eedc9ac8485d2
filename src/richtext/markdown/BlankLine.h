#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// A line of spaces and tabs. It separates blocks and produces no node.
namespace Markdown::BlankLine {

bool begins(const Line &line);
QList<ADFNode> read(LineCursor &lines, const BlockContext &context);

} // namespace Markdown::BlankLine
