#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// One to six "#", a space, and the text to the end of the line. A closing sequence of "#" is not recognised.
namespace Markdown::Heading {

bool begins(const Line &line);
void read(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks);

} // namespace Markdown::Heading
