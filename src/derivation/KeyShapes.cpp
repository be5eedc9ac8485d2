#include "derivation/KeyShapes.h"

#include <algorithm>

KeyShapes::KeyShapes(const IssueList &issues)
{
    for (const auto &issue : issues) {
        const bool isKnown = std::ranges::any_of(m_shapes, [&issue](const Shape &shape) {
            return shape.length == issue->key.size() && shape.project == issue->projectKey;
        });
        if (!isKnown)
            m_shapes.push_back({issue->projectKey, issue->key.size(), issue->key});
    }
}
