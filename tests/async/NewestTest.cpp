#include "async/Newest.h"

#include <gtest/gtest.h>

namespace {

TEST(NewestTest, aMarkIsTheNewestUntilTheNextBegins)
{
    Newest operations;
    const auto first = operations.begin();
    EXPECT_TRUE(isNewest(first));
    const auto second = operations.begin();
    EXPECT_FALSE(isNewest(first));
    EXPECT_TRUE(isNewest(second));
}

TEST(NewestTest, aMarkIsOldAfterTheEnd)
{
    Newest operations;
    const auto mark = operations.begin();
    operations.end();
    EXPECT_FALSE(isNewest(mark));
    EXPECT_FALSE(isNewest(Newest::Mark()));
}

TEST(NewestTest, aMarkIsOldWhenItsOperationsAreGone)
{
    Newest::Mark mark;
    {
        Newest operations;
        mark = operations.begin();
    }
    EXPECT_FALSE(isNewest(mark));
}

} // namespace
