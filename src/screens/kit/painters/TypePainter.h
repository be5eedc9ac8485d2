#pragma once

#include "model/Enums.h"

class QPainter;

/// Draws the symbol of an issue type's family in its colour, at font size `size`, centred in the square from (0, 0) to
/// (size + 2, size + 2). A large symbol may exceed the square.
void paintTypeIcon(QPainter &painter, Model::IssueTypeKind kind, qreal size);
