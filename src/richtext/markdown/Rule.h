#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// A line that is exactly "---", "***" or "___".
namespace Markdown::Rule {

bool begins(const Line &line);
QList<ADFNode> read(LineCursor &lines, const BlockContext &context);

} // namespace Markdown::Rule
