#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "derivation/IssueDerivationOrder.h"

#include <vector>

/// The different shapes of the keys in a list. To find the width of the widest key, it is enough to measure one key of
/// each shape.
class KeyShapes
{
public:
    /// The keys of one project that have the same length.
    struct Shape
    {
        QString project;
        qsizetype length = 0;
        /// One key of this shape.
        QString example;

        bool operator==(const Shape &) const = default;
    };

    KeyShapes() = default;
    /// The shapes in these rows of the index. Costs a pass over the rows that reads one record of each shape.
    KeyShapes(const IssueRows &rows, const IssueIndex &index);

    /// The shapes that occur in the list.
    const std::vector<Shape> &shapes() const { return m_shapes; }

    bool operator==(const KeyShapes &) const = default;

private:
    std::vector<Shape> m_shapes;
};
