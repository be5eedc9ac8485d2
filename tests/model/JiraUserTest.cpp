#include "model/JiraUser.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

JiraUser named(const QString &name)
{
    return JiraUser{u"1"_s, name, {}, {}};
}

TEST(JiraUser, InitialsComeFromTheFirstTwoWords)
{
    EXPECT_EQ(named(u"Jean Paul de la Tour"_s).initials(), u"JP"_s);
    EXPECT_EQ(named(u"odile"_s).initials(), u"O"_s);
    EXPECT_EQ(named(u"  émile   zola "_s).initials(), u"ÉZ"_s);
}

TEST(JiraUser, InitialsOfAnEmptyNameAreAQuestionMark)
{
    EXPECT_EQ(named(QString()).initials(), u"?"_s);
    EXPECT_EQ(named(u"   "_s).initials(), u"?"_s);
}

TEST(JiraUser, InitialsKeepWholeCharacters)
{
    EXPECT_EQ(named(u"e\u0301va 🦊renard"_s).initials(), u"E\u0301🦊"_s);
}

TEST(JiraUser, OnlySpacesPartWords)
{
    EXPECT_EQ(named(u"Anne\tMarie Dupont"_s).initials(), u"AD"_s);
    EXPECT_EQ(named(u"Jean-Luc Martin"_s).firstName(), u"Jean-Luc"_s);
}

TEST(JiraUser, FirstNameIsTheFirstWordOrTheWholeName)
{
    EXPECT_EQ(named(u" Odile Marchais"_s).firstName(), u"Odile"_s);
    EXPECT_EQ(named(QString()).firstName(), QString());
    EXPECT_EQ(named(u"  "_s).firstName(), u"  "_s);
}

} // namespace
