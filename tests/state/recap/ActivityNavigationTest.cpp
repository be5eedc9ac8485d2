#include "state/recap/ActivityNavigation.h"

#include <gtest/gtest.h>

TEST(ActivityNavigation, PreviousGoesBack)
{
    const ActivityPeriod period{.range = ActivityRange::Month, .offset = -2, .teamWide = true};
    EXPECT_EQ(previousPeriod(period),
              (ActivityPeriod{.range = ActivityRange::Month, .offset = -3, .teamWide = true}));
}

TEST(ActivityNavigation, NextFromMinusOneGivesTheCurrentPeriod)
{
    EXPECT_EQ(nextPeriod({.offset = -1}).offset, 0);
}

TEST(ActivityNavigation, NextIsDisabledAtTheCurrentPeriodAndStaysThere)
{
    EXPECT_FALSE(hasNextPeriod({.offset = 0}));
    EXPECT_TRUE(hasNextPeriod({.offset = -1}));
    EXPECT_EQ(nextPeriod({.offset = 0}).offset, 0);
}

TEST(ActivityNavigation, ASwitchOfRangeKeepsTheOffset)
{
    EXPECT_EQ(withRange({.offset = -3, .teamWide = true}, ActivityRange::Month),
              (ActivityPeriod{.range = ActivityRange::Month, .offset = -3, .teamWide = true}));
}

TEST(ActivityNavigation, ASwitchOfPeopleKeepsThePeriod)
{
    EXPECT_EQ(withPeople({.offset = -3}, Recap::People::Team),
              (ActivityPeriod{.offset = -3, .teamWide = true}));
    EXPECT_EQ(withPeople({.offset = -3, .teamWide = true}, Recap::People::Me),
              (ActivityPeriod{.offset = -3}));
}

TEST(ActivityNavigation, NoWayLeadsIntoTheFuture)
{
    const ActivityPeriod future{.offset = 4};
    EXPECT_EQ(previousPeriod(future).offset, 0);
    EXPECT_EQ(nextPeriod(future).offset, 0);
    EXPECT_EQ(withRange(future, ActivityRange::Month).offset, 0);
    EXPECT_EQ(withPeople(future, Recap::People::Team).offset, 0);
    EXPECT_FALSE(hasNextPeriod(future));
}
