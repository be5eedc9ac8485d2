#include "richtext/ADFMarkdown.h"
#include "richtext/ADFNodes.h"
#include "richtext/CaseFile.h"
#include "richtext/Outline.h"
#include "richtext/RandomDocuments.h"
#include "richtext/WritingOracle.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

UserCalendar paris()
{
    return {{QLocale::French, QLocale::France}, QTimeZone("Europe/Paris")};
}

ADFNode readBack(const QString &markdown)
{
    return ADFMarkdown::document(markdown, [] { return u"id"_s; });
}

TEST(MarkdownWritingProperty, AnyDocumentIsWrittenByTheRules)
{
    const UserCalendar calendar = paris();
    Random random(20'261'029);
    qsizetype length = 0;
    for (int i = 0; i < 20'000; ++i) {
        const ADFNode document = anyDocument(random, 1 + i % 9);
        const QString markdown = ADFMarkdown::markdown(document, calendar);
        length += markdown.size();
        ASSERT_EQ(markdown, markdownOracle(document, calendar))
            << outline(*document.content).toStdString();
    }
    // The documents are not empty on average.
    EXPECT_GT(length, 20'000 * 10);
}

TEST(MarkdownWritingProperty, WhatMarkdownCanRepresentSurvivesASave)
{
    const UserCalendar calendar = paris();
    Random random(31);
    for (int i = 0; i < 10'000; ++i) {
        const ADFNode document = plainDocument(random);
        const QString markdown = ADFMarkdown::markdown(document, calendar);
        ASSERT_EQ(outline(*readBack(markdown).content).toStdString(),
                  outline(*document.content).toStdString())
            << markdown.toStdString();
    }
}

/// Documents made from any text, in which literal characters may become markup.
TEST(MarkdownWritingProperty, AnyDocumentOfTheParserIsWrittenByTheRules)
{
    const UserCalendar calendar = paris();
    for (const Case &each :
         casesIn(u"markdown"_s, u"blocks"_s) + casesIn(u"markdown"_s, u"inline"_s)) {
        const ADFNode document = readBack(each.input);
        EXPECT_EQ(ADFMarkdown::markdown(document, calendar), markdownOracle(document, calendar))
            << qPrintable(each.name);
    }
}

} // namespace
