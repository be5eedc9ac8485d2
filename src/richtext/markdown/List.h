#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// A run of list lines: one or more bullet, ordered and task lists.
namespace Markdown::List {

bool begins(const Line &line);
QList<ADFNode> read(LineCursor &lines, const BlockContext &context);

} // namespace Markdown::List
