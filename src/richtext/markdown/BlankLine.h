#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// A line of spaces and tabs. It separates blocks and produces no node.
namespace Markdown::BlankLine {

bool begins(const Line &line);
void read(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks);

} // namespace Markdown::BlankLine
