#include "screens/documents/content/RandomTree.h"

#include "screens/documents/content/DocumentBlocks.h"

#include <gtest/gtest.h>

namespace {

/// Every number in the blocks refers to something, and every frame has pieces of its own flow.
void expectConsistent(const DocumentBlocks &blocks)
{
    for (const auto &text : blocks.texts) {
        const auto &piece = blocks.flows.at(size_t(text.flow)).pieces.at(size_t(text.piece));
        EXPECT_EQ(&text, &blocks.texts.at(size_t(piece.index)));
    }
    for (const auto &flow : blocks.flows) {
        EXPECT_GE(flow.below, 0);
        for (const auto &frame : flow.frames) {
            EXPECT_LT(frame.first, frame.end);
            EXPECT_LE(frame.end, int(flow.pieces.size()));
            EXPECT_LT(frame.parent, int(flow.frames.size()));
            EXPECT_GE(frame.above, 0);
            EXPECT_GE(frame.below, 0);
        }
        for (const auto &piece : flow.pieces) {
            EXPECT_GE(piece.gap, 0);
            EXPECT_LT(piece.frame, int(flow.frames.size()));
        }
    }
}

} // namespace

TEST(RandomTree, IsDividedIntoConsistentBlocks)
{
    for (unsigned seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        expectConsistent(DocumentBlocks::of(RandomTree(seed).document(6), {}));
    }
}
