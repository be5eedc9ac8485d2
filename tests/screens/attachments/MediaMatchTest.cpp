#include "screens/attachments/media/MediaMatch.h"

#include "screens/attachments/Samples.h"

#include <gtest/gtest.h>

using namespace AttachmentSamples;
using namespace Qt::StringLiterals;

namespace {

const QList<Attachment> Files{picture(u"10"_s, u"Plan.png"_s), picture(u"11"_s, u"plan.png"_s),
                              picture(u"12"_s, u"autre.png"_s)};

QString matchOf(const ADFNode &node)
{
    const auto found = MediaMatch::match(node, Files);
    return found ? found->id : u"none"_s;
}

} // namespace

TEST(MediaMatch, ANodeWithoutAttributesMatchesNothing)
{
    EXPECT_EQ(matchOf({.type = u"media"_s}), u"none"_s);
    EXPECT_EQ(matchOf(media({})), u"none"_s);
}

TEST(MediaMatch, TheIdentifierComesBeforeTheName)
{
    EXPECT_EQ(matchOf(media({{u"velmoraAttachmentID"_s, u"12"_s}, {u"alt"_s, u"Plan.png"_s}})),
              u"12"_s);
}

TEST(MediaMatch, AnUnknownIdentifierLeavesTheDecisionToTheName)
{
    EXPECT_EQ(matchOf(media({{u"velmoraAttachmentID"_s, u"99"_s}, {u"alt"_s, u"autre.png"_s}})),
              u"12"_s);
}

TEST(MediaMatch, TheExactNameComesBeforeTheOneInAnotherCase)
{
    EXPECT_EQ(matchOf(mediaWithAlt(u"plan.png"_s)), u"11"_s);
}

TEST(MediaMatch, AMediaNodeNamingAFileByAltInAnotherCaseStillFindsIt)
{
    EXPECT_EQ(matchOf(mediaWithAlt(u"AUTRE.PNG"_s)), u"12"_s);
    EXPECT_EQ(matchOf(mediaWithAlt(u"PLAN.png"_s)), u"10"_s) << "the first of two";
}

TEST(MediaMatch, ANameThatNoFileHasMatchesNothing)
{
    EXPECT_EQ(matchOf(mediaWithAlt(u"plan"_s)), u"none"_s);
    EXPECT_EQ(matchOf(mediaWithAlt(u""_s)), u"none"_s);
}

TEST(MediaMatch, AnAttributeThatIsNoTextIsIgnored)
{
    EXPECT_EQ(matchOf(media({{u"velmoraAttachmentID"_s, true}, {u"alt"_s, JSONValue()}})),
              u"none"_s);
}

TEST(MediaMatch, ASingleNodeIsItsOwnMedia)
{
    const ADFNode node = mediaWithID(u"10"_s);
    EXPECT_EQ(MediaMatch::mediaOf(node), QList<ADFNode>{node});
}

TEST(MediaMatch, AGroupShowsItsMediaAndNoOtherChild)
{
    const ADFNode first = mediaWithID(u"10"_s);
    const ADFNode second = mediaWithID(u"11"_s);
    const ADFNode caption{.type = u"caption"_s};
    const ADFNode group{.type = u"mediaGroup"_s, .content = QList<ADFNode>{first, caption, second}};
    EXPECT_EQ(MediaMatch::mediaOf(group), QList<ADFNode>({first, second}));
    EXPECT_TRUE(MediaMatch::mediaOf({.type = u"mediaSingle"_s}).isEmpty());
}
