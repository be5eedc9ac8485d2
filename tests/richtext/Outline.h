#pragma once

#include "model/ADFNode.h"

/// Nodes as indented lines, for reading and comparing. A text is its marks and its words in JSON quotes:
/// `strong em "words"`, a link with its target: `link(/url) "words"`. Any other node is its type, then its attributes
/// in JSON when present, `[]` when its content is present and empty, and its children below it.
QString outline(const QList<ADFNode> &nodes);
