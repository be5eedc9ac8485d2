#include "richtext/ADFMarkdown.h"
#include "richtext/CaseFile.h"
#include "richtext/Outline.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class InlineCases : public testing::TestWithParam<Case>
{
};

TEST_P(InlineCases, GiveTheRuns)
{
    const QString nodes = outline(ADFMarkdown::inlineNodes(GetParam().input));
    EXPECT_EQ(nodes.toStdString(), GetParam().expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Markdown, InlineCases,
                         testing::ValuesIn(casesIn(u"markdown"_s, u"inline"_s)),
                         [](const auto &info) { return testName(info.param); });

class BlockCases : public testing::TestWithParam<Case>
{
};

TEST_P(BlockCases, GiveTheBlocks)
{
    int last = 0;
    const auto localIDs = [&] { return u"id%1"_s.arg(++last); };
    const ADFNode document = ADFMarkdown::document(GetParam().input, localIDs);
    EXPECT_EQ(outline(*document.content).toStdString(), GetParam().expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Markdown, BlockCases,
                         testing::ValuesIn(casesIn(u"markdown"_s, u"blocks"_s)),
                         [](const auto &info) { return testName(info.param); });

} // namespace
