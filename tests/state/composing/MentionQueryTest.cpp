#include "state/composing/MentionQuery.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> wordsAtEnd(const QString &text)
{
    const auto found = mentionQuery(text, text.size());
    return found ? std::optional(found->words) : std::nullopt;
}

} // namespace

TEST(MentionQuery, NoAtSignIsNoQuery)
{
    EXPECT_EQ(wordsAtEnd(u""_s), std::nullopt);
    EXPECT_EQ(wordsAtEnd(u"bonjour"_s), std::nullopt);
}

TEST(MentionQuery, AnAtSignAloneIsAnEmptyQuery)
{
    EXPECT_EQ(wordsAtEnd(u"@"_s), u""_s);
    EXPECT_EQ(wordsAtEnd(u"bonjour @"_s), u""_s);
}

TEST(MentionQuery, AnEMailAddressIsNone)
{
    EXPECT_EQ(wordsAtEnd(u"noam@orvantis.fr"_s), std::nullopt);
    EXPECT_EQ(wordsAtEnd(u"@noam@orvantis"_s), std::nullopt) << "the last one counts";
}

TEST(MentionQuery, AnyWhiteSpaceBeforeTheAtSignWillDo)
{
    EXPECT_EQ(wordsAtEnd(u"bonjour\n@no"_s), u"no"_s);
    EXPECT_EQ(wordsAtEnd(u"bonjour\t@no"_s), u"no"_s);
    EXPECT_EQ(wordsAtEnd(u"bonjour\u00A0@no"_s), u"no"_s);
    EXPECT_EQ(wordsAtEnd(u"(@no"_s), std::nullopt);
}

TEST(MentionQuery, ANameAndASurnameStandAndAThirdWordClosesIt)
{
    EXPECT_EQ(wordsAtEnd(u"@noam tessier"_s), u"noam tessier"_s);
    EXPECT_EQ(wordsAtEnd(u"@noam tessier "_s), std::nullopt);
    EXPECT_EQ(wordsAtEnd(u"@noam tessier vient"_s), std::nullopt);
}

TEST(MentionQuery, ALineBreakClosesIt)
{
    EXPECT_EQ(wordsAtEnd(u"@noam\n"_s), std::nullopt);
    EXPECT_EQ(wordsAtEnd(u"@noam\u2028a"_s), std::nullopt);
}

TEST(MentionQuery, ThirtyCharactersStandAndThirtyOneDoNot)
{
    EXPECT_EQ(wordsAtEnd(u'@' + QString(30, u'a')), QString(30, u'a'));
    EXPECT_EQ(wordsAtEnd(u'@' + QString(31, u'a')), std::nullopt);
    const QString accented = u"e\u0301"_s.repeated(30);
    EXPECT_EQ(wordsAtEnd(u'@' + accented), accented) << "a letter and its accent are one character";
    EXPECT_EQ(wordsAtEnd(u'@' + accented + u'a'), std::nullopt);
}

TEST(MentionQuery, ItEndsAtTheCaret)
{
    const QString text = u"vu avec @nora hier et @maud"_s;
    EXPECT_EQ(mentionQuery(text, 11), (MentionQuery{8, u"no"_s}));
    EXPECT_EQ(mentionQuery(text, 9), (MentionQuery{8, u""_s}));
    EXPECT_EQ(mentionQuery(text, 8), std::nullopt) << "before the at-sign";
    EXPECT_EQ(mentionQuery(text, 0), std::nullopt);
    EXPECT_EQ(mentionQuery(text, 27), (MentionQuery{22, u"maud"_s}));
}
