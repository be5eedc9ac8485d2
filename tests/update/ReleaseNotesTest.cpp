#include "update/ReleaseNotes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::string plain(const QString &notes)
{
    return ReleaseNotes::plain(notes).value_or(u"absent"_s).toStdString();
}

TEST(ReleaseNotesTest, AbsentNotesStayAbsent)
{
    EXPECT_FALSE(ReleaseNotes::plain(std::nullopt));
}

TEST(ReleaseNotesTest, BlankNotesAreAbsent)
{
    EXPECT_EQ(plain(u""_s), "absent");
    EXPECT_EQ(plain(u" \n\t\r\n"_s), "absent");
}

TEST(ReleaseNotesTest, MarksDisappear)
{
    EXPECT_EQ(plain(u"  Des **listes** plus `rapides` et un [lien](https://a.example).\n"_s),
              "Des listes plus rapides et un lien.");
}

TEST(ReleaseNotesTest, LinesAndBlanksAreKept)
{
    EXPECT_EQ(plain(u"Un\n\nDeux  mots"_s), "Un\n\nDeux  mots");
}

TEST(ReleaseNotesTest, UnclosedMarksStayText)
{
    EXPECT_EQ(plain(u"2 * 3 **et"_s), "2 * 3 **et");
}

TEST(ReleaseNotesTest, CutsAfterSixHundredCharacters)
{
    EXPECT_EQ(plain(QString(600, u'x')), std::string(600, 'x'));
    EXPECT_EQ(plain(QString(601, u'x')), std::string(600, 'x'));
}

TEST(ReleaseNotesTest, DoesNotCutACharacterInTwo)
{
    const QString flag = u"\U0001F1EB\U0001F1F7"_s;
    EXPECT_EQ(ReleaseNotes::plain(flag.repeated(601)), flag.repeated(600));
}

} // namespace
