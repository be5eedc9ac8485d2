#include "model/text/VisibleText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString unchanged(const QString &text)
{
    return visibleText(text) == text ? text : u"changed to "_s + visibleText(text);
}

} // namespace

TEST(VisibleText, AReversedExtensionIsSeen)
{
    EXPECT_EQ(visibleText(u"facture\u202Egpj.exe"_s), u"facture[U+202E]gpj.exe"_s);
}

TEST(VisibleText, EveryChangeOfDirectionIsSeen)
{
    for (const char16_t control :
         {u'\u061C', u'\u200E', u'\u200F', u'\u202A', u'\u202B', u'\u202C', u'\u202D', u'\u202E',
          u'\u2066', u'\u2067', u'\u2068', u'\u2069'}) {
        const QString shown = visibleText(u"a"_s + QChar(control) + u'b');
        EXPECT_EQ(shown, u"a[U+%1]b"_s.arg(QString::number(control, 16).toUpper(), 4, u'0'));
    }
}

TEST(VisibleText, CharactersWithoutWidthAreSeen)
{
    EXPECT_EQ(visibleText(u"ban\u200Bque"_s), u"ban[U+200B]que"_s);
    EXPECT_EQ(visibleText(u"ban\u200Dque"_s), u"ban[U+200D]que"_s);
    EXPECT_EQ(visibleText(u"ban\u200Cque"_s), u"ban[U+200C]que"_s);
    EXPECT_EQ(visibleText(u"ban\u2060que"_s), u"ban[U+2060]que"_s);
    EXPECT_EQ(visibleText(u"\uFEFFbanque"_s), u"[U+FEFF]banque"_s);
    EXPECT_EQ(visibleText(u"ban\u00ADque"_s), u"ban[U+00AD]que"_s);
    EXPECT_EQ(visibleText(u"ban\uFE0Fque"_s), u"ban[U+FE0F]que"_s);
    EXPECT_EQ(visibleText(u"ban\u034Fque"_s), u"ban[U+034F]que"_s);
}

TEST(VisibleText, BlankLettersAreSeen)
{
    EXPECT_EQ(visibleText(u"\u3164"_s), u"[U+3164]"_s);
    EXPECT_EQ(visibleText(u"\u115F\u1160\uFFA0\u2800"_s), u"[U+115F][U+1160][U+FFA0][U+2800]"_s);
}

TEST(VisibleText, ControlsAndLineBreaksAreSeen)
{
    EXPECT_EQ(visibleText(u"a\nb\tc\u0000d\u007F\u0085\u2028\u2029"_s),
              u"a[U+000A]b[U+0009]c[U+0000]d[U+007F][U+0085][U+2028][U+2029]"_s);
}

TEST(VisibleText, UnpairedSurrogatesAreSeen)
{
    EXPECT_EQ(visibleText(u'a' + QString(QChar(0xD83D)) + u'b'), u"a[U+D83D]b"_s);
    EXPECT_EQ(visibleText(QString(QChar(0xDE80)) + QChar(0xD83D)), u"[U+DE80][U+D83D]"_s);
}

TEST(VisibleText, HiddenTagsAreSeen)
{
    EXPECT_EQ(visibleText(u"a\U000E0041"_s), u"a[U+E0041]"_s);
    EXPECT_EQ(visibleText(u"\U0001F3F4\U000E0067\U000E0062"_s), u"\U0001F3F4[U+E0067][U+E0062]"_s);
    EXPECT_EQ(visibleText(u"\U0001F3F4\U000E007F"_s), u"\U0001F3F4[U+E007F]"_s);
}

TEST(VisibleText, OrdinaryTextIsUnchanged)
{
    for (const QString &text : {u""_s, u"Léa Roy-Dünya"_s, u"e\u0301té"_s, u"10\u00A0000 €"_s,
                                u"中文, 日本語"_s, u"שלום"_s, u"مرحبا"_s, u"🚀🙂"_s, u"[U+202E]"_s})
        EXPECT_EQ(unchanged(text), text);
}

TEST(VisibleText, NamesThatNeedJoinersAreUnchanged)
{
    for (const QString &text : {u"می\u200Cخواهم"_s, u"क्\u200Dष"_s, u"ශ්\u200Dරී"_s})
        EXPECT_EQ(unchanged(text), text);
}

TEST(VisibleText, EmojiAreUnchanged)
{
    for (const QString &text :
         {u"👩\u200D💻"_s, u"❤\uFE0F"_s, u"🏳\uFE0F\u200D🌈"_s, u"1\uFE0F\u20E3"_s, u"👍🏽"_s,
          u"🏴\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F"_s, u"葛\U000E0100"_s})
        EXPECT_EQ(unchanged(text), text);
}

TEST(VisibleText, ASecondSelectorIsSeen)
{
    EXPECT_EQ(visibleText(u"❤\uFE0F\uFE0F"_s), u"❤\uFE0F[U+FE0F]"_s);
    EXPECT_EQ(visibleText(u"葛\U000E0100\U000E0101"_s), u"葛\U000E0100[U+E0101]"_s);
}

TEST(VisibleText, NothingInvisibleRemainsInAnyText)
{
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        const QString text = QString::fromUcs4(&character, 1);
        const QString shown = visibleText(u"a"_s + text + u'a');
        EXPECT_TRUE(shown == u"a"_s + text + u'a' || shown.startsWith("a[U+"_L1));
        EXPECT_EQ(visibleText(shown), shown);
        EXPECT_EQ(withoutInvisible(shown), shown);
    }
}

TEST(VisibleText, InvisibleCharactersCanBeRemoved)
{
    EXPECT_EQ(withoutInvisible(u"ban\u200Bque\u202E.fr 👩\u200D💻"_s), u"banque.fr 👩\u200D💻"_s);
}
