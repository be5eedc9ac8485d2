#include "richtext/ADFCoding.h"
#include "richtext/ADFMarkdown.h"
#include "richtext/CaseFile.h"
#include "simulator/DocumentCheck.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The site must accept the document made from any typed text.
class SentDocuments : public testing::TestWithParam<Case>
{
};

INSTANTIATE_TEST_SUITE_P(Inline, SentDocuments,
                         testing::ValuesIn(casesIn(u"markdown"_s, u"inline"_s)),
                         [](const auto &info) { return testName(info.param); });
INSTANTIATE_TEST_SUITE_P(Blocks, SentDocuments,
                         testing::ValuesIn(casesIn(u"markdown"_s, u"blocks"_s)),
                         [](const auto &info) { return testName(info.param); });

TEST_P(SentDocuments, AreTaken)
{
    const QByteArray json = ADFCoding::encode(ADFMarkdown::document(GetParam().input));
    const auto fault = faultOf(QJsonDocument::fromJson(json).object());
    EXPECT_EQ(fault.value_or(QString()).toStdString(), "") << json.constData();
}

} // namespace
