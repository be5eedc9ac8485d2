#include "screens/documents/content/ADFInline.h"

#include "richtext/ADFNodes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

InlineContext context(std::optional<QString> meID = {})
{
    return {std::move(meID),
            {QLocale(QLocale::French, QLocale::France), QTimeZone("Europe/Paris")}};
}

ADFNode node(QStringView type, const ADFAttributes &attrs = {})
{
    auto made = ADF::plain(type);
    if (!attrs.isEmpty())
        made.attrs = attrs;
    return made;
}

ADFMark mark(const QString &type, const QString &name = {}, const JSONValue &value = {})
{
    ADFMark made{.type = type};
    if (!name.isEmpty())
        made.attrs = ADFAttributes{{name, value}};
    return made;
}

InlineRun only(const ADFNode &piece, std::optional<QString> meID = {})
{
    const auto runs = ADFInline::piece(piece, context(std::move(meID)));
    EXPECT_EQ(runs.size(), 1);
    return runs.value(0);
}

InlineRun marked(const ADFMark &given)
{
    return only(ADF::text(u"mot"_s, {given}));
}

bool isBlank(const ADFNode &piece)
{
    return ADFInline::piece(piece, context()).isEmpty();
}

} // namespace

TEST(ADFInline, TextIsPlainWithoutMarks)
{
    EXPECT_EQ(only(ADF::text(u"mot"_s)), InlineRun{.text = u"mot"_s});
}

TEST(ADFInline, HardBreakIsANewline)
{
    EXPECT_EQ(only(node(u"hardBreak")).text, u"\n"_s);
}

TEST(ADFInline, MentionShowsItsTextInTheAccentColour)
{
    const auto run = only(node(u"mention", {{u"id"_s, u"u1"}, {u"text"_s, u"@Nora"}}));
    EXPECT_EQ(run.text, u"@Nora"_s);
    EXPECT_EQ(run.kind, InlineRun::Kind::Mention);
    EXPECT_TRUE(run.isAccented);
}

TEST(ADFInline, MentionWithoutReadableTextIsAnAtSign)
{
    EXPECT_EQ(only(node(u"mention")).text, u"@"_s);
    EXPECT_EQ(only(node(u"mention", {{u"text"_s, true}})).text, u"@"_s);
}

TEST(ADFInline, AMentionOfTheCurrentUserHasABackgroundAndOneOfAnotherUserHasNot)
{
    const auto mention = node(u"mention", {{u"id"_s, u"u1"}, {u"text"_s, u"@Nora"}});
    EXPECT_EQ(only(mention, u"u1"_s).kind, InlineRun::Kind::OwnMention);
    EXPECT_EQ(only(mention, u"u2"_s).kind, InlineRun::Kind::Mention);
}

TEST(ADFInline, NoMentionIsTheCurrentUsersWhileThatIsUnknown)
{
    EXPECT_EQ(only(node(u"mention", {{u"text"_s, u"@Nora"}})).kind, InlineRun::Kind::Mention);
}

TEST(ADFInline, ANumericMentionIdIsComparedAsText)
{
    EXPECT_EQ(only(node(u"mention", {{u"id"_s, 12}}), u"12"_s).kind, InlineRun::Kind::OwnMention);
}

TEST(ADFInline, EmojiShowsItsTextThenItsShortNameThenNothing)
{
    EXPECT_EQ(only(node(u"emoji", {{u"text"_s, u"👍"}, {u"shortName"_s, u":+1:"}})).text, u"👍"_s);
    EXPECT_EQ(only(node(u"emoji", {{u"shortName"_s, u":+1:"}})).text, u":+1:"_s);
    EXPECT_TRUE(isBlank(node(u"emoji")));
}

TEST(ADFInline, CardsAreLinksToTheirAddress)
{
    for (const auto *type : {u"inlineCard", u"blockCard"}) {
        const auto run = only(node(type, {{u"url"_s, u"https://exemple.fr/a"}}));
        EXPECT_EQ(run.text, u"https://exemple.fr/a"_s);
        EXPECT_EQ(run.link, run.text);
        EXPECT_TRUE(run.isAccented);
    }
}

TEST(ADFInline, ACardWithoutAddressShowsNothing)
{
    EXPECT_TRUE(isBlank(node(u"inlineCard")));
    EXPECT_TRUE(isBlank(node(u"blockCard")));
}

TEST(ADFInline, ACardWhoseAddressIsMalformedShowsItAndIsNoLink)
{
    const auto run = only(node(u"inlineCard", {{u"url"_s, u"http://[a b"}}));
    EXPECT_EQ(run.text, u"http://[a b"_s);
    EXPECT_EQ(run.link, QString());
    EXPECT_TRUE(run.isAccented);
}

TEST(ADFInline, AStatusWithTheTextEnCoursReadsInUpperCaseBetweenSpaces)
{
    const auto run = only(node(u"status", {{u"text"_s, u"En cours"}, {u"color"_s, u"red"}}));
    EXPECT_EQ(run.text, u" EN COURS "_s);
    EXPECT_EQ(run.kind, InlineRun::Kind::Status);
    EXPECT_EQ(run.color, std::nullopt);
}

TEST(ADFInline, DateIsTheDayInTheUsersZoneAndLocale)
{
    // 28 October 2026, 23:30 UTC, which is the 29th in Paris.
    EXPECT_EQ(only(node(u"date", {{u"timestamp"_s, u"1793230200000"}})).text, u"29 oct. 2026"_s);
    EXPECT_EQ(only(node(u"date", {{u"timestamp"_s, 1793230200000.0}})).text, u"29 oct. 2026"_s);
}

TEST(ADFInline, ADateWithoutANumberShowsNothing)
{
    EXPECT_TRUE(isBlank(node(u"date")));
    for (const auto *text : {u"", u"demain", u"inf", u"nan", u"1e300", u"12 h"})
        EXPECT_TRUE(isBlank(node(u"date", {{u"timestamp"_s, text}})))
            << QString::fromUtf16(text).toStdString();
}

TEST(ADFInline, AnyOtherNodeShowsItsContent)
{
    const auto unknown = ADF::container(u"novelty", {ADF::text(u"a"_s), ADF::text(u"b"_s)});
    EXPECT_EQ(ADFInline::plainText(ADFInline::piece(unknown, context())), u"ab"_s);
    EXPECT_TRUE(isBlank(node(u"novelty")));
}

TEST(ADFInline, StrongMarkIsStrongEmphasis)
{
    EXPECT_TRUE(marked(mark(u"strong"_s)).isStrong);
}

TEST(ADFInline, EmMarkIsEmphasis)
{
    EXPECT_TRUE(marked(mark(u"em"_s)).isEmphasized);
}

TEST(ADFInline, StrikeMarkIsStrikethrough)
{
    EXPECT_TRUE(marked(mark(u"strike"_s)).isStruck);
}

TEST(ADFInline, CodeMarkIsMonospaced)
{
    EXPECT_TRUE(marked(mark(u"code"_s)).isCode);
}

TEST(ADFInline, UnderlineMarkIsAnUnderline)
{
    EXPECT_TRUE(marked(mark(u"underline"_s)).isUnderlined);
}

TEST(ADFInline, LinkMarkIsALinkInTheAccentColour)
{
    const auto run = marked(mark(u"link"_s, u"href"_s, u"https://exemple.fr"));
    EXPECT_EQ(run.link, u"https://exemple.fr"_s);
    EXPECT_TRUE(run.isAccented);
}

TEST(ADFInline, AMalformedLinkMarkIsDropped)
{
    const InlineRun plain{.text = u"mot"_s};
    EXPECT_EQ(marked(mark(u"link"_s, u"href"_s, u"http://[a b")), plain);
    EXPECT_EQ(marked(mark(u"link"_s, u"href"_s, u"")), plain);
    EXPECT_EQ(marked(mark(u"link"_s, u"href"_s, false)), plain);
    EXPECT_EQ(marked(mark(u"link"_s)), plain);
}

TEST(ADFInline, TextColorMarkIsTheForeground)
{
    EXPECT_EQ(marked(mark(u"textColor"_s, u"color"_s, u"#ff5630")).color, QColor(0xff, 0x56, 0x30));
}

TEST(ADFInline, AnUnreadableColourIsDropped)
{
    EXPECT_EQ(marked(mark(u"textColor"_s, u"color"_s, u"rouge")), InlineRun{.text = u"mot"_s});
}

TEST(ADFInline, AnyOtherMarkIsIgnored)
{
    EXPECT_EQ(marked(mark(u"subsup"_s, u"type"_s, u"sub")), InlineRun{.text = u"mot"_s});
}

TEST(ADFInline, MarksAreAppliedTogether)
{
    const auto run = only(ADF::text(u"mot"_s, {mark(u"strong"_s), mark(u"em"_s), mark(u"strike"_s),
                                               mark(u"underline"_s), mark(u"code"_s)}));
    EXPECT_TRUE(run.isStrong && run.isEmphasized && run.isStruck && run.isUnderlined && run.isCode);
}

TEST(ADFInline, AttributedJoinsTheRunsInTheirOrder)
{
    const auto runs = ADFInline::attributed(
        {ADF::text(u"a"_s), node(u"hardBreak"), ADF::text(u"b"_s, {mark(u"strong"_s)})}, context());
    EXPECT_EQ(ADFInline::plainText(runs), u"a\nb"_s);
}
