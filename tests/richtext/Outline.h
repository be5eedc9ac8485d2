#pragma once

#include "model/ADFNode.h"

/// Writes nodes as indented lines, for reading and comparison. A text node is written as its marks and its text in JSON
/// quotes: `strong em "words"`, a link with its target: `link(/url) "words"`. Any other node is written as its type,
/// then its attributes in JSON if there are any, `[]` if its content is present and empty, and its children on the
/// following lines.
QString outline(const QList<ADFNode> &nodes);

/// Reads nodes from lines that `outline` has written. The program is aborted if it cannot.
QList<ADFNode> nodesOf(const QString &outline);
