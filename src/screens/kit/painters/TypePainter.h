#pragma once

#include "model/Enums.h"

class QPainter;

/// Draws the symbol of a type's family in its colour, at font size `size`, centred in the square from (0, 0)
/// to (size + 2, size + 2), which a large one leaves.
void paintTypeIcon(QPainter &painter, Model::IssueTypeKind kind, qreal size);
