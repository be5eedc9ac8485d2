#include "derivation/KeyShapes.h"

#include "derivation/IssueDerivationSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(KeyShapes, OneForEachProjectAndLength)
{
    const KeyShapes keys({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s),
                          sampleIssue(u"WEB-10"_s), sampleIssue(u"OPS-1"_s)});
    ASSERT_EQ(keys.shapes().size(), 3);
    EXPECT_EQ(keys.shapes()[0].example, u"WEB-1");
    EXPECT_EQ(keys.shapes()[1].example, u"WEB-10");
    EXPECT_EQ(keys.shapes()[2].example, u"OPS-1");
}
