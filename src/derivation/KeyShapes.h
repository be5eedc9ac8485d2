#pragma once

#include "model/Issue.h"

#include <vector>

/// What the keys of a list look like: how wide the widest one is can be told from one key of each shape.
class KeyShapes
{
public:
    /// Keys of one project and one length.
    struct Shape
    {
        QString project;
        qsizetype length = 0;
        /// Such a key.
        QString example;

        bool operator==(const Shape &) const = default;
    };

    KeyShapes() = default;
    explicit KeyShapes(const IssueList &issues);

    /// Those that occur.
    const std::vector<Shape> &shapes() const { return m_shapes; }

    bool operator==(const KeyShapes &) const = default;

private:
    std::vector<Shape> m_shapes;
};
