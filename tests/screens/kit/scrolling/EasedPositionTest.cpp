#include "screens/kit/scrolling/EasedPosition.h"

#include <gtest/gtest.h>

namespace {

constexpr ScrollBounds bounds{.first = 0, .last = 1000};

double afterAWhile(EasedPosition &eased)
{
    for (int frame = 0; frame < 200; ++frame)
        eased.advance(16, bounds);
    EXPECT_TRUE(eased.isAtRest());
    return eased.position();
}

} // namespace

TEST(EasedPosition, DistancesAreAddedUpWhateverTheTimeBetweenThem)
{
    for (const int pause : {0, 10, 50, 200, 1000}) {
        EasedPosition eased;
        double position = 100;
        for (int notch = 0; notch < 5; ++notch) {
            eased.push(72, position, bounds);
            eased.advance(pause, bounds);
            position = eased.position();
        }
        EXPECT_DOUBLE_EQ(afterAWhile(eased), 100 + 5 * 72) << pause;
    }
}

TEST(EasedPosition, TheFirstFrameIsNotYetAtTheTarget)
{
    EasedPosition eased;
    eased.push(72, 0, bounds);
    eased.advance(16, bounds);

    EXPECT_GT(eased.position(), 5);
    EXPECT_LT(eased.position(), 60);
}

TEST(EasedPosition, TheRestBeyondABoundIsDropped)
{
    EasedPosition eased;
    for (int notch = 0; notch < 40; ++notch)
        eased.push(72, 900, bounds);
    EXPECT_DOUBLE_EQ(eased.target(), 1000);
    eased.push(-72, 1000, bounds);

    EXPECT_DOUBLE_EQ(afterAWhile(eased), 928);
}

TEST(EasedPosition, AReversalDropsWhatIsLeft)
{
    EasedPosition eased;
    for (int notch = 0; notch < 5; ++notch)
        eased.push(72, 500, bounds);
    eased.advance(16, bounds);
    const double turning = eased.position();
    eased.push(-72, turning, bounds);
    EXPECT_DOUBLE_EQ(eased.target(), turning - 72);
    eased.advance(16, bounds);

    EXPECT_LT(eased.position(), turning);
}

TEST(EasedPosition, ContentThatBecomesShorterBoundsTheMovement)
{
    EasedPosition eased;
    eased.push(900, 0, bounds);
    eased.advance(100, {.first = 0, .last = 50});

    EXPECT_LE(eased.position(), 50);
    EXPECT_DOUBLE_EQ(eased.target(), 50);
}
