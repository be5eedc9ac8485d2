#pragma once

#include "screens/documents/content/DocumentBlocks.h"
#include "screens/documents/content/TextPlace.h"

/// What is copied of a document.
namespace CopiedText {

/// The selected characters, with a line for each block and tabs between the cells of a row.
QString plain(const DocumentBlocks &blocks, const TextRange &range);
/// The same with headings, lists, quotes, code, tables, links and emphasis as HTML.
QString html(const DocumentBlocks &blocks, const TextRange &range);

} // namespace CopiedText
