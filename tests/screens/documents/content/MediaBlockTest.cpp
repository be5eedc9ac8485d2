#include "screens/documents/content/MediaBlock.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ADFNode media(const QString &alt)
{
    ADFNode node{.type = u"media"_s};
    node.attrs = ADFAttributes{{u"alt"_s, alt}, {u"velmoraAttachmentID"_s, 10}};
    return node;
}

} // namespace

TEST(MediaBlock, OfAMediaNodeShowsTheNodeItself)
{
    const MediaBlock block{media(u"a.png"_s)};
    EXPECT_EQ(block.fileNames(), QStringList{u"a.png"_s});
    EXPECT_EQ(block.attachmentIDs(), QStringList{u"10"_s});
}

TEST(MediaBlock, OfAGroupShowsItsMediaAndNothingElse)
{
    ADFNode group{.type = u"mediaGroup"_s};
    group.content = {media(u"a.png"_s), ADFNode{.type = u"caption"_s}, ADFNode{.type = u"media"_s}};
    const MediaBlock block{group};
    EXPECT_EQ(block.fileNames(), (QStringList{u"a.png"_s, QString()}));
    EXPECT_EQ(block.attachmentIDs(), (QStringList{u"10"_s, QString()}));
}

TEST(MediaBlock, WithoutContentShowsNothing)
{
    EXPECT_TRUE(MediaBlock{ADFNode{.type = u"mediaSingle"_s}}.files().isEmpty());
}
