#include "derivation/KeyShapes.h"

#include <algorithm>

KeyShapes::KeyShapes(const IssueList &issues)
{
    for (const auto &issue : issues)
        add(*issue);
}

void KeyShapes::add(const Issue &issue)
{
    const auto known = shapeOf(issue);
    if (known != m_shapes.end())
        ++known->count;
    else
        m_shapes.push_back({issue.projectKey, issue.key.size(), issue.key, 1});
}

void KeyShapes::remove(const Issue &issue)
{
    const auto known = shapeOf(issue);
    if (known != m_shapes.end() && --known->count == 0)
        m_shapes.erase(known);
}

std::vector<KeyShapes::Shape>::iterator KeyShapes::shapeOf(const Issue &issue)
{
    return std::ranges::find_if(m_shapes, [&issue](const Shape &shape) {
        return shape.length == issue.key.size() && shape.project == issue.projectKey;
    });
}
