#pragma once

#include "model/ADFNode.h"

#include <random>

using Random = std::mt19937;

/// A document in which any kind of node can contain any other, with attributes and marks that are often missing or of
/// the wrong kind, up to `depth` levels.
ADFNode anyDocument(Random &random, int depth);

/// A document of what Markdown can represent: paragraphs with line breaks, headings, nested lists, task lists, code,
/// quotes, rules, links, and the marks strong, em, strike and code. The local ids are all "id".
ADFNode plainDocument(Random &random);
