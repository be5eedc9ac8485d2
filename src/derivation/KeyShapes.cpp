#include "derivation/KeyShapes.h"

#include <unordered_set>
#include <utility>

KeyShapes::KeyShapes(const IssueRows &rows, const IssueIndex &index)
{
    std::unordered_set<quint64> known;
    quint64 last = 0;
    for (const auto row : rows) {
        const auto &indexed = index.rows()[row];
        const auto shape = quint64(indexed.project) << 32 | indexed.keyLength;
        // Most neighbours have the same shape. No key is empty, so the first shape is never 0.
        if (shape == std::exchange(last, shape) || !known.insert(shape).second)
            continue;
        const auto &issue = *index.issues()[row];
        m_shapes.push_back({issue.projectKey, issue.key.size(), issue.key});
    }
}
