#include "derivation/KeyShapes.h"

#include "derivation/IssueDerivationSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList examples(const KeyShapes &keys)
{
    QStringList texts;
    for (const auto &shape : keys.shapes())
        texts.append(shape.example);
    return texts;
}

} // namespace

TEST(KeyShapes, OneForEachProjectAndLength)
{
    IssueIndex index;
    index.update({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"WEB-10"_s),
                  sampleIssue(u"OPS-1"_s)});
    EXPECT_EQ(examples(KeyShapes({0, 1, 2, 3}, index)),
              (QStringList{u"WEB-1"_s, u"WEB-10"_s, u"OPS-1"_s}));
}

TEST(KeyShapes, OnlyOfTheGivenRows)
{
    IssueIndex index;
    index.update({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-10"_s), sampleIssue(u"WEB-2"_s)});
    EXPECT_EQ(examples(KeyShapes({2}, index)), (QStringList{u"WEB-2"_s}));
    EXPECT_TRUE(KeyShapes({}, index).shapes().empty());
}
