#pragma once

#include <QStringList>

/// Descriptions as people write them in Markdown, always the same ones: paragraphs with emphasis, links, code and
/// mentions, headings, nested lists, tasks, tables, code, quotes and rules.
QStringList documentCorpus(int count);
