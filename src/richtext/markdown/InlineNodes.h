#pragma once

#include "model/ADFNode.h"

#include <QStringView>

#include <span>

namespace Markdown {

/// The inline nodes of the lines, a hard break between each two. An empty line gives none of its own.
QList<ADFNode> inlineNodes(std::span<const QStringView> lines);
/// The inline nodes of one line; none when it is empty.
QList<ADFNode> inlineNodes(QStringView line);

} // namespace Markdown
