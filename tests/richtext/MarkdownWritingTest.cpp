#include "richtext/ADFMarkdown.h"
#include "richtext/ADFNodes.h"
#include "richtext/ADFQueries.h"
#include "richtext/CaseFile.h"
#include "richtext/Outline.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

UserCalendar calendarIn(const QByteArray &zone, QLocale locale = {QLocale::French, QLocale::France})
{
    return {locale, QTimeZone(zone)};
}

/// The Markdown of a document that is given as an outline.
QString written(const QString &outline, const UserCalendar &calendar = calendarIn("Europe/Paris"))
{
    return ADFMarkdown::markdown(ADF::document(nodesOf(outline)), calendar);
}

QString dateIn(const QString &timestamp, const UserCalendar &calendar)
{
    return written(u"paragraph\n  date {\"timestamp\":%1}"_s.arg(timestamp), calendar);
}

class WritingCases : public testing::TestWithParam<Case>
{
};

TEST_P(WritingCases, GiveTheMarkdown)
{
    EXPECT_EQ(written(GetParam().input).toStdString(), GetParam().expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Markdown, WritingCases,
                         testing::ValuesIn(casesIn(u"markdown"_s, u"written"_s)),
                         [](const auto &info) { return testName(info.param); });

TEST(MarkdownWriting, AnIssueWithoutADescriptionGivesTheEmptyText)
{
    EXPECT_EQ(ADFMarkdown::markdown(std::optional<ADFNode>(), calendarIn("Europe/Paris")),
              QString());
}

TEST(MarkdownWriting, APresentDescriptionIsWrittenLikeTheDocument)
{
    const std::optional<ADFNode> document = ADFMarkdown::document(u"a"_s);
    EXPECT_EQ(ADFMarkdown::markdown(document, calendarIn("Europe/Paris")), u"a"_s);
}

TEST(MarkdownWriting, ADocumentWithoutContentGivesTheEmptyText)
{
    EXPECT_EQ(ADFMarkdown::markdown(ADF::plain(u"doc"), calendarIn("Europe/Paris")), QString());
    EXPECT_EQ(ADFMarkdown::markdown(ADF::document({}), calendarIn("Europe/Paris")), QString());
}

TEST(MarkdownWriting, HeadingLevelsAboveSixGiveSixSigns)
{
    EXPECT_EQ(written(u"heading {\"level\":9}\n  \"a\""_s), u"###### a"_s);
}

TEST(MarkdownWriting, HeadingLevelsBelowOneGiveOneSign)
{
    EXPECT_EQ(written(u"heading {\"level\":0}\n  \"a\""_s), u"# a"_s);
    EXPECT_EQ(written(u"heading {\"level\":-4}\n  \"a\""_s), u"# a"_s);
}

TEST(MarkdownWriting, AnOrderedListCountsFromItsOrder)
{
    EXPECT_EQ(written(u"orderedList {\"order\":5}\n"
                      "  listItem\n    paragraph\n      \"a\"\n"
                      "  listItem\n    paragraph\n      \"b\""_s),
              u"5. a\n6. b"_s);
}

TEST(MarkdownWriting, NumbersOfItemsDoNotExceedTheLargestNumber)
{
    const QString item = u"  listItem\n    paragraph\n      \"a\"\n"_s;
    EXPECT_EQ(written(u"orderedList {\"order\":\"9223372036854775807\"}\n"_s + item + item),
              u"9223372036854775807. a\n9223372036854775807. a"_s);
}

TEST(MarkdownWriting, ABulletListWithoutContentLeavesNoBlankParagraph)
{
    EXPECT_EQ(written(u"paragraph\n  \"a\"\nbulletList\nparagraph\n  \"b\""_s), u"a\n\nb"_s);
}

TEST(MarkdownWriting, ACodeBlockInAListIndentsItsFencesAndNotItsLines)
{
    EXPECT_EQ(written(u"bulletList\n"
                      "  listItem\n"
                      "    paragraph\n      \"a\"\n"
                      "    codeBlock {\"language\":\"sh\"}\n      \"ls\\n  -l\""_s),
              u"- a\n  ```sh\nls\n  -l\n  ```"_s);
}

TEST(MarkdownWriting, AQuoteOfTwoParagraphsHasAMarkedLineBetweenThem)
{
    EXPECT_EQ(written(u"blockquote\n  paragraph\n    \"a\"\n  paragraph\n    \"b\""_s),
              u"> a\n> \n> b"_s);
}

TEST(MarkdownWriting, ADateThatIsNoNumberGivesNothing)
{
    const UserCalendar calendar = calendarIn("Europe/Paris");
    for (const QString &timestamp :
         {u"\"hier\""_s, u"\"\""_s, u"true"_s, u"null"_s, u"\" 0\""_s, u"\"nan\""_s, u"\"inf\""_s,
          u"1e300"_s, u"\"-1e17\""_s, u"{}"_s})
        EXPECT_EQ(dateIn(timestamp, calendar), QString()) << qPrintable(timestamp);
    EXPECT_EQ(written(u"paragraph\n  date"_s), QString());
}

TEST(MarkdownWriting, ATableInAnExpandWarnsAndStandsInItsPlace)
{
    const QString outline = u"paragraph\n  \"a\"\n"
                            "expand {\"title\":\"t\"}\n"
                            "  table\n    tableRow\n      tableCell\n        paragraph\n"
                            "          \"x\"\n"
                            "paragraph\n  \"b\""_s;
    EXPECT_TRUE(ADF::containsRichContent(ADF::document(nodesOf(outline))));
    EXPECT_EQ(written(outline), u"a\n\n| x |\n| --- |\n\nb"_s);
}

TEST(MarkdownWriting, StrongAndEmphasisStandBetweenThreeAsterisks)
{
    EXPECT_EQ(written(u"paragraph\n  strong em \"a\""_s), u"***a***"_s);
}

TEST(MarkdownWriting, DatesAreDaysOfTheUsersZone)
{
    // The first of November 2026 at midnight in Universal Time.
    const QString midnight = u"\"1793491200000\""_s;
    EXPECT_EQ(dateIn(midnight, calendarIn("Europe/Paris")), u"1 nov. 2026"_s);
    EXPECT_EQ(dateIn(midnight, calendarIn("America/New_York")), u"31 oct. 2026"_s);
}

TEST(MarkdownWriting, DatesAreInTheUsersLanguage)
{
    const UserCalendar american = calendarIn("UTC", {QLocale::English, QLocale::UnitedStates});
    EXPECT_EQ(dateIn(u"1793491200000"_s, american), u"Nov 1, 2026"_s);
}

TEST(MarkdownWriting, DatesMayHaveFractionsOfAMillisecondAndLieBefore1970)
{
    const UserCalendar calendar = calendarIn("UTC");
    EXPECT_EQ(dateIn(u"\"1793491200000.75\""_s, calendar), u"1 nov. 2026"_s);
    EXPECT_EQ(dateIn(u"\"1.7934912e12\""_s, calendar), u"1 nov. 2026"_s);
    EXPECT_EQ(dateIn(u"-0.5"_s, calendar), u"31 déc. 1969"_s);
}

TEST(MarkdownWriting, AListOfTwoEmptyItemsIsNotDropped)
{
    EXPECT_EQ(written(u"bulletList\n  listItem\n  listItem"_s), u"\n"_s);
}

TEST(MarkdownWriting, LineBreaksInTextAreQuotedAndNotIndented)
{
    EXPECT_EQ(written(u"bulletList\n"
                      "  listItem\n"
                      "    paragraph\n      \"a\"\n"
                      "    blockquote\n"
                      "      blockquote\n"
                      "        paragraph\n          \"b\\nc\"\n          hardBreak\n"
                      "          \"d\"\n"
                      "    paragraph\n      \"e\\nf\""_s),
              u"- a\n  > > b\n  > > c\n  > > d\n  e\nf"_s);
}

} // namespace
