#include "richtext/ADFMentions.h"

#include "richtext/ADFMarkdown.h"
#include "richtext/ADFNodes.h"
#include "richtext/Outline.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

JiraUser user(const QString &id, const QString &name)
{
    JiraUser result;
    result.id = id;
    result.name = name;
    return result;
}

const QList<JiraUser> people{user(u"1"_s, u"Nora Valmy"_s), user(u"2"_s, u"Ann"_s),
                             user(u"3"_s, u"Ann Marie"_s), user(u"4"_s, QString())};

/// The outline of a paragraph with the text after linking: mentions as "@id", texts in quotes.
std::string linked(const QString &text, const QList<JiraUser> &users = people)
{
    const ADFNode node =
        ADF::linkingMentions(ADF::container(u"paragraph", {ADF::text(text)}), users);
    QStringList words;
    for (const ADFNode &child : *node.content) {
        const bool isMention = child.type == u"mention";
        words.append(isMention ? u"@"_s + child.attrs->value(u"id"_s).string().value()
                               : u"'%1'"_s.arg(*child.text));
    }
    return words.join(u' ').toStdString();
}

TEST(ADFMentions, KnownNameBecomesAMention)
{
    EXPECT_EQ(linked(u"merci @Nora Valmy pour tout"_s), "'merci ' @1 ' pour tout'");
}

TEST(ADFMentions, MentionCarriesIDTextAndEmptyAccessLevel)
{
    const ADFNode node =
        ADF::linkingMentions(ADF::container(u"paragraph", {ADF::text(u"@Ann"_s)}), people);
    EXPECT_EQ(outline(*node.content).toStdString(),
              R"(mention {"accessLevel":"","id":"2","text":"@Ann"})");
}

TEST(ADFMentions, LetterBeforeTheAtSignKeepsText)
{
    EXPECT_EQ(linked(u"x@Nora Valmy"_s), "'x@Nora Valmy'");
    EXPECT_EQ(linked(u"é@Ann"_s), "'é@Ann'");
    EXPECT_EQ(linked(u"7@Ann"_s), "'7@Ann'");
    EXPECT_EQ(linked(u"𝒳@Ann"_s), "'𝒳@Ann'");
}

TEST(ADFMentions, AccentOnALetterBeforeTheAtSignKeepsText)
{
    EXPECT_EQ(linked(u"e\u0301@Ann"_s), "'e\u0301@Ann'");
}

TEST(ADFMentions, MentionBetweenParentheses)
{
    EXPECT_EQ(linked(u"(@Nora Valmy)"_s), "'(' @1 ')'");
}

TEST(ADFMentions, LetterAfterTheNameKeepsText)
{
    EXPECT_EQ(linked(u"@Anna"_s), "'@Anna'");
    EXPECT_EQ(linked(u"@Ann2"_s), "'@Ann2'");
    EXPECT_EQ(linked(u"@Anné"_s), "'@Anné'");
}

TEST(ADFMentions, AccentAfterTheNameIsPartOfItsLastCharacter)
{
    EXPECT_EQ(linked(u"@Ann\u0301"_s), "'@Ann\u0301'");
}

TEST(ADFMentions, AtSignWithACombiningMarkIsAnotherCharacter)
{
    EXPECT_EQ(linked(u"@\u0301Ann"_s), "'@\u0301Ann'");
}

TEST(ADFMentions, PunctuationAndUnderscoreEndAName)
{
    EXPECT_EQ(linked(u"@Ann, @Ann_ @Ann-Lise"_s), "@2 ', ' @2 '_ ' @2 '-Lise'");
}

TEST(ADFMentions, LongestNameWins)
{
    EXPECT_EQ(linked(u"@Ann Marie"_s), "@3");
    EXPECT_EQ(linked(u"@Ann Mar"_s), "@2 ' Mar'");
}

TEST(ADFMentions, LongestIsByCharactersAsReadersCount)
{
    // The first name has three characters in six code points, the second has four in four. Both match, and the one with
    // more characters is tried first.
    const QList<JiraUser> users{user(u"short"_s, u"e\u0301e\u0301e\u0301"_s),
                                user(u"long"_s, u"e\u0301e\u0301e\u0301 a"_s)};
    EXPECT_EQ(linked(u"@e\u0301e\u0301e\u0301 a"_s, users), "@long");
}

TEST(ADFMentions, FirstOfTwoUsersOfOneNameWins)
{
    EXPECT_EQ(linked(u"@Ann"_s, {user(u"a"_s, u"Ann"_s), user(u"b"_s, u"Ann"_s)}), "@a");
}

TEST(ADFMentions, CaseCounts)
{
    EXPECT_EQ(linked(u"@ann @ANN"_s), "'@ann @ANN'");
}

TEST(ADFMentions, SeveralMentionsInARow)
{
    EXPECT_EQ(linked(u"@Ann @Ann Marie@Nora Valmy @@Ann"_s), "@2 ' ' @3 '@Nora Valmy @' @2");
}

TEST(ADFMentions, MarksStayOnTheTextAndLeaveTheMention)
{
    const ADFNode node = ADF::linkingMentions(ADFMarkdown::document(u"**a @Ann b**"_s), people);
    EXPECT_EQ(outline(*node.content).toStdString(),
              "paragraph\n  strong \"a \"\n  mention "
              "{\"accessLevel\":\"\",\"id\":\"2\",\"text\":\"@Ann\"}\n  strong \" b\"");
}

TEST(ADFMentions, InlineCodeAndLinksStay)
{
    const ADFNode before = ADFMarkdown::document(u"`@Ann` [@Ann](a)"_s);
    EXPECT_EQ(ADF::linkingMentions(before, people), before);
}

TEST(ADFMentions, CodeBlockIsConverted)
{
    const ADFNode node = ADF::linkingMentions(ADFMarkdown::document(u"```\n@Ann\n```"_s), people);
    EXPECT_EQ(node.content->at(0).content->at(0).type, u"mention"_s);
}

TEST(ADFMentions, NestedTextIsConverted)
{
    const ADFNode node =
        ADF::linkingMentions(ADFMarkdown::document(u"> - a\n>   - @Ann"_s), people);
    EXPECT_TRUE(outline(*node.content).contains(u"mention"));
}

TEST(ADFMentions, WithoutNamedUsersNothingChanges)
{
    const ADFNode before = ADFMarkdown::document(u"@Ann @"_s);
    EXPECT_EQ(ADF::linkingMentions(before, {}), before);
    EXPECT_EQ(ADF::linkingMentions(before, {user(u"4"_s, QString())}), before);
}

TEST(ADFMentions, NodeWithoutContentStays)
{
    EXPECT_EQ(ADF::linkingMentions(ADF::plain(u"rule"), people), ADF::plain(u"rule"));
    EXPECT_EQ(ADF::linkingMentions(ADF::text(u"@Ann"_s), people), ADF::text(u"@Ann"_s));
}

TEST(ADFMentions, HalfASurrogatePairDoesNotCrash)
{
    EXPECT_EQ(ADF::linkingMentions(ADF::container(u"p", {ADF::text(QString(QChar(0xDE80)) +
                                                                   u"@Ann"_s + QChar(0xD83D))}),
                                   people)
                  .content->size(),
              3);
}

} // namespace
