#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// The lines up to the next one that starts a block of another kind.
namespace Markdown::Paragraph {

void read(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks);

} // namespace Markdown::Paragraph
