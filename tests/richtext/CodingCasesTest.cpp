#include "richtext/ADFCoding.h"
#include "richtext/CaseFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CodingCases : public testing::TestWithParam<Case>
{
};

/// The document after decoding and encoding, or the decoding error.
QString outcome(const QString &json)
{
    const auto node = ADFCoding::decodeNode(json.toUtf8());
    return node ? QString::fromUtf8(ADFCoding::encode(*node)) : node.error().description();
}

TEST_P(CodingCases, ReadAndWriteAgain)
{
    EXPECT_EQ(outcome(GetParam().input).toStdString(), GetParam().expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Documents, CodingCases, testing::ValuesIn(casesIn(u"adf"_s, u"coding"_s)),
                         [](const auto &info) { return testName(info.param); });

} // namespace
