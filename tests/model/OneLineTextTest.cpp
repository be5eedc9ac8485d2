#include "model/OneLineText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(OneLine, ALineBreakBecomesABlank)
{
    EXPECT_EQ(oneLine(u"Un\ndeux"_s), u"Un deux"_s);
    EXPECT_EQ(oneLine(u"Un\r\ndeux"_s), u"Un deux"_s);
    EXPECT_EQ(oneLine(u"Un\u2028deux\u2029trois\u0085quatre"_s), u"Un deux trois quatre"_s);
}

TEST(OneLine, OtherControlCharactersBecomeABlankToo)
{
    EXPECT_EQ(oneLine(u"Un\tdeux\x07trois"_s), u"Un deux trois"_s);
}

TEST(OneLine, BreaksAtTheEndsAreRemoved)
{
    EXPECT_EQ(oneLine(u"\n\nUn\n"_s), u"Un"_s);
    EXPECT_EQ(oneLine(u"\n"_s), QString());
}

TEST(OneLine, BlanksAndSignsOfWritingDirectionStay)
{
    const QString text = u" Un  deux\u00A0trois \u200Fשלום 👩‍💻"_s;
    EXPECT_EQ(oneLine(text), text);
}

TEST(OneLine, AnIssueIsShownWithItsTextsOnOneLine)
{
    Issue issue;
    issue.summary = u"Un\ndeux"_s;
    issue.parent = IssueRef{};
    issue.parent->summary = u"Trois\nquatre"_s;
    issue.assignee = JiraUser{u"u"_s, u"Noam\nTalvère"_s, {}, {}};
    const Issue shown = withOneLineTexts(issue);

    EXPECT_EQ(shown.summary, u"Un deux"_s);
    EXPECT_EQ(shown.parentSummary(), u"Trois quatre"_s);
    EXPECT_EQ(shown.assigneeOrEmpty().name, u"Noam Talvère"_s);
}

} // namespace
