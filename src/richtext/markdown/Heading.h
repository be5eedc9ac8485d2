#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// One to six "#", a space, and the words; closed by nothing but the end of the line.
namespace Markdown::Heading {

bool begins(const Line &line);
QList<ADFNode> read(LineCursor &lines, const BlockContext &context);

} // namespace Markdown::Heading
