#include "model/Shared.h"

#include <gtest/gtest.h>
#include <string>

namespace {

struct CountingValue
{
    static inline int comparisons = 0;
    int number = 0;

    bool operator==(const CountingValue &other) const
    {
        ++comparisons;
        return number == other.number;
    }
};

TEST(Shared, IsNeverNull)
{
    EXPECT_EQ(*Shared<std::string>(), std::string());
}

TEST(Shared, ComparesTheValuesOfDifferentObjects)
{
    EXPECT_EQ(Shared(std::string("a")), Shared(std::string("a")));
    EXPECT_FALSE(Shared(std::string("a")) == Shared(std::string("b")));
}

TEST(Shared, DoesNotLookInsideOneAndTheSameObject)
{
    const Shared value(CountingValue{1});
    const Shared copy = value; // NOLINT(performance-unnecessary-copy-initialization)
    CountingValue::comparisons = 0;
    EXPECT_TRUE(value == copy);
    EXPECT_TRUE(value.isSameObject(copy));
    EXPECT_EQ(CountingValue::comparisons, 0);
    EXPECT_FALSE(value.isSameObject(Shared(CountingValue{1})));
}

} // namespace
