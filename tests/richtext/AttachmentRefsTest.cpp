#include "richtext/AttachmentRefs.h"

#include "richtext/ADFNodes.h"
#include "richtext/ADFQueries.h"
#include "richtext/LinearTime.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ADFNode media()
{
    return {.type = u"media"_s, .attrs = ADFAttributes{{u"width"_s, 200}}};
}

ADFNode mediaDocument(int count)
{
    QList<ADFNode> content;
    for (int i = 0; i < count; ++i)
        content.append(ADF::container(u"mediaSingle", {media()}));
    return ADF::document(content);
}

TEST(AttachmentRefs, NoHTMLNamesNone)
{
    EXPECT_EQ(AttachmentRefs::ids({}), QStringList());
    EXPECT_EQ(AttachmentRefs::ids(u""), QStringList());
}

TEST(AttachmentRefs, FindsTheThreeFormsInOrder)
{
    EXPECT_EQ(AttachmentRefs::ids(u"<a href=\"https://s/secure/attachment/30/plan.pdf\">x</a>"
                                  "<img src='/rest/api/3/attachment/content/10'><img "
                                  "src=\"/rest/api/3/attachment/thumbnail/20?x\">"),
              QStringList({u"30"_s, u"10"_s, u"20"_s}));
}

TEST(AttachmentRefs, ThumbnailAndLinkOfOneAttachmentCountOnce)
{
    EXPECT_EQ(AttachmentRefs::ids(u"<a href=\"/secure/attachment/7/a.png\"><img "
                                  "src=\"/rest/api/3/attachment/thumbnail/7\"></a>"
                                  "<img src=\"/rest/api/3/attachment/content/8\">"),
              QStringList({u"7"_s, u"8"_s}));
}

TEST(AttachmentRefs, IdentifiersThatBeginAlikeAreTwo)
{
    EXPECT_EQ(AttachmentRefs::ids(u"/attachment/content/1 /attachment/content/12"),
              QStringList({u"1"_s, u"12"_s}));
}

TEST(AttachmentRefs, LeadingZerosBelongToTheIdentifier)
{
    EXPECT_EQ(AttachmentRefs::ids(u"/attachment/content/007"), QStringList({u"007"_s}));
}

TEST(AttachmentRefs, AnAddressMayFollowTheBeginningOfAnother)
{
    EXPECT_EQ(AttachmentRefs::ids(u"/secure/attachment/attachment/content/5"),
              QStringList({u"5"_s}));
}

class NoReference : public testing::TestWithParam<QString>
{
};

TEST_P(NoReference, NamesNone)
{
    EXPECT_EQ(AttachmentRefs::ids(GetParam()), QStringList());
}

INSTANTIATE_TEST_SUITE_P(AttachmentRefs, NoReference,
                         testing::Values(u"/attachment/5"_s, u"attachment/content/5"_s,
                                         u"/attachment/content/"_s, u"/attachment/content/x5"_s,
                                         u"/Secure/Attachment/5"_s, u"/secure/attachments/5"_s,
                                         u"/attachment/content5"_s, u"/secure/attachment"_s, u"/"_s,
                                         u"https://site/browse/NOV-5"_s));

class HostileHTML : public testing::TestWithParam<QString>
{
};

TEST_P(HostileHTML, TakesLinearTime)
{
    const QString unit = GetParam();
    const PreparedWork prepare = [&](qsizetype length) {
        return [html = unit.repeated(length / unit.size())] { AttachmentRefs::ids(html); };
    };
    expectLinear(prepare, 400'000);
}

INSTANTIATE_TEST_SUITE_P(AttachmentRefs, HostileHTML,
                         testing::Values(u"/"_s, u"/secure/attachment/"_s, u"1"_s,
                                         u"/secure/attachment/1"_s, u"/attachment/content"_s,
                                         u"/attachment/thumbnail/12 "_s, u"<a href='"_s));

TEST(AttachmentRefs, AVeryLongIdentifierIsFoundOnce)
{
    const QString digits(1'000'000, u'1');
    EXPECT_EQ(AttachmentRefs::ids(u"/attachment/content/"_s + digits), QStringList({digits}));
}

TEST(AttachmentRefs, DescriptionWithTwoMediaAndOneIdentifierTiesTheFirst)
{
    const auto tied = AttachmentRefs::tied(mediaDocument(2), {u"10"_s});
    EXPECT_EQ(ADF::mediaAttachmentIDs(*tied), QStringList({u"10"_s}));
    EXPECT_EQ(tied->content->at(1), mediaDocument(2).content->at(1));
}

TEST(AttachmentRefs, TiedMediaKeepTheirOtherAttributes)
{
    const auto tied = AttachmentRefs::tied(mediaDocument(1), {u"10"_s});
    EXPECT_EQ(ADF::attribute(tied->content->at(0).content->at(0), u"width"_s), u"200"_s);
}

TEST(AttachmentRefs, HTMLThatLinksOneAttachmentTwiceTiesOnlyTheFirstOfTwoMedia)
{
    const QStringList ids =
        AttachmentRefs::ids(u"/attachment/content/10 /secure/attachment/10/bild.png");
    EXPECT_EQ(ADF::mediaAttachmentIDs(*AttachmentRefs::tied(mediaDocument(2), ids)),
              QStringList({u"10"_s}));
}

TEST(AttachmentRefs, WithoutIdentifiersTheDocumentStaysAsItIs)
{
    EXPECT_EQ(AttachmentRefs::tied(mediaDocument(1), {}), mediaDocument(1));
    EXPECT_EQ(AttachmentRefs::tied(std::nullopt, {u"10"_s}), std::nullopt);
}

} // namespace
