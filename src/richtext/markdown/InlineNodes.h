#pragma once

#include "model/ADFNode.h"

#include <QStringView>

#include <span>

namespace Markdown {

/// The inline nodes of the lines, with a hard break between consecutive lines. An empty line adds no other node.
QList<ADFNode> inlineNodes(std::span<const QStringView> lines);
/// The inline nodes of one line; none for an empty line.
QList<ADFNode> inlineNodes(QStringView line);

} // namespace Markdown
