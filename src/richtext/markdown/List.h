#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// A sequence of list lines, which forms one or more bullet, ordered and task lists.
namespace Markdown::List {

bool begins(const Line &line);
void read(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks);

} // namespace Markdown::List
