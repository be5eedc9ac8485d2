#pragma once

#include "model/ADFNode.h"

#include <random>

/// Makes documents of arbitrary nodes: every kind anywhere, absent, wrong and absurd attributes, and texts with emoji,
/// right-to-left letters and characters without width.
class RandomTree
{
public:
    explicit RandomTree(unsigned seed) : m_random(seed) {}

    /// A document with nodes at most `depth` levels below its root.
    ADFNode document(int depth);

private:
    ADFNode node(int depth);
    ADFAttributes attributes();
    JSONValue value();
    QString text();
    int below(int limit) { return int(m_random() % unsigned(limit)); }

    std::mt19937 m_random;
};
