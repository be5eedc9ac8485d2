#include "screens/kit/overlays/MenuBench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class MenuSearch : public testing::Test
{
protected:
    MenuBench menu{MenuBench::rowsOf({u"Arnaud Petit"_s, u"Élodie Roy"_s, u"Eric Bon"_s,
                                      u"Jean Aumont"_s, u"Jean Dupont"_s, u"Œuvre"_s})};
    void TearDown() override { EXPECT_EQ(menu.warnings(), ""); }
};

TEST_F(MenuSearch, LettersFindTitlesWithoutRegardToCaseAndDiacritics)
{
    menu.type(u"el"_s, 1000);
    EXPECT_EQ(menu.highlighted(), u"Élodie Roy"_s);
    menu.type(u"OE"_s, 9000);
    EXPECT_EQ(menu.highlighted(), u"Œuvre"_s);
}

TEST_F(MenuSearch, APauseStartsANewSearch)
{
    menu.type(u"e"_s, 1000);
    EXPECT_EQ(menu.highlighted(), u"Élodie Roy"_s);
    menu.type(u"r"_s, 1999);
    EXPECT_EQ(menu.highlighted(), u"Eric Bon"_s);
    menu.type(u"j"_s, 2999);
    EXPECT_EQ(menu.highlighted(), u"Jean Aumont"_s);
}

TEST_F(MenuSearch, TheSameLetterGoesToTheNextTitleAndAroundTheEnd)
{
    menu.type(u"e"_s, 1000);
    menu.type(u"e"_s, 1200);
    EXPECT_EQ(menu.highlighted(), u"Eric Bon"_s);
    menu.type(u"e"_s, 1400);
    EXPECT_EQ(menu.highlighted(), u"Élodie Roy"_s);
}

TEST_F(MenuSearch, ASpaceWithinASearchBelongsToIt)
{
    menu.type(u"jean d"_s, 1000);
    EXPECT_TRUE(menu.isOpen());
    EXPECT_EQ(menu.highlighted(), u"Jean Dupont"_s);
}

TEST_F(MenuSearch, ASpaceAfterThePauseChoosesTheEntry)
{
    menu.type(u"jean"_s, 1000);
    menu.press(Qt::Key_Space, u" "_s, 2500);
    EXPECT_FALSE(menu.isOpen());
}

TEST_F(MenuSearch, LettersThatNoTitleBeginsWithChangeNothing)
{
    menu.type(u"a"_s, 1000);
    menu.type(u"z"_s, 5000);
    EXPECT_EQ(menu.highlighted(), u"Arnaud Petit"_s);
    EXPECT_TRUE(menu.isOpen());
}
