#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

/// What no other kind begins: the lines up to the next one that begins something.
namespace Markdown::Paragraph {

QList<ADFNode> read(LineCursor &lines, const BlockContext &context);

} // namespace Markdown::Paragraph
