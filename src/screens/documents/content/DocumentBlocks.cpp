#include "screens/documents/content/DocumentBlocks.h"

#include "screens/documents/content/BlockBuilder.h"

DocumentBlocks DocumentBlocks::of(const ADFNode &document, const BlockOptions &options)
{
    DocumentBlocks blocks;
    BlockBuilder(blocks, options).build(document);
    return blocks;
}
