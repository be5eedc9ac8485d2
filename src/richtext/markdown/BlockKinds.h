#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

#include <QList>

#include <span>

namespace Markdown {

/// The blocks of the lines: at each line the first kind that it begins takes over.
QList<ADFNode> parseBlocks(std::span<const QStringView> lines, const BlockContext &context);

/// True when the line begins some kind of block other than a paragraph.
bool beginsBlock(const Line &line);

} // namespace Markdown
