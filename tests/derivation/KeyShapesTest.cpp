#include "derivation/KeyShapes.h"

#include "derivation/IssueDerivationSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(KeyShapes, OneForEachProjectAndLength)
{
    KeyShapes keys({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"WEB-10"_s),
                    sampleIssue(u"OPS-1"_s)});
    ASSERT_EQ(keys.shapes().size(), 3);
    EXPECT_EQ(keys.shapes()[0].example, u"WEB-1");
    EXPECT_EQ(keys.shapes()[0].count, 2);
}

TEST(KeyShapes, AShapeGoesWithItsLastIssue)
{
    KeyShapes keys({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"WEB-10"_s)});
    keys.remove(sampleIssue(u"WEB-10"_s));
    keys.remove(sampleIssue(u"WEB-1"_s));
    ASSERT_EQ(keys.shapes().size(), 1);
    EXPECT_EQ(keys.shapes()[0].count, 1);
    keys.remove(sampleIssue(u"WEB-2"_s));
    EXPECT_TRUE(keys.shapes().empty());
}
