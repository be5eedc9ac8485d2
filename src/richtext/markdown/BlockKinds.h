#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/LineCursor.h"

#include <QList>

#include <span>

namespace Markdown {

/// Converts lines to blocks. Each block is read by the first kind whose test accepts its first line.
QList<ADFNode> parseBlocks(std::span<const QStringView> lines, const BlockContext &context);

/// True if the line starts a block of a kind other than a paragraph.
bool beginsBlock(const Line &line);

} // namespace Markdown
