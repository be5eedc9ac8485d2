#include "shell/about/KeyFrames.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

KeyFrames::Time at(std::chrono::milliseconds sinceStart)
{
    return KeyFrames::Time(1h + sinceStart);
}

TEST(KeyFramesTest, TheTimeLastsFromThePressToTheFrameOnTheScreen)
{
    KeyFrames frames;
    frames.pressed(at(10ms));
    frames.handled(at(12ms));
    frames.frameBegan(at(15ms));
    EXPECT_EQ(frames.frameShown(at(24ms)), 14ms);
}

TEST(KeyFramesTest, OnlyTheFirstFrameCounts)
{
    KeyFrames frames;
    frames.pressed(at(10ms));
    frames.handled(at(12ms));
    frames.frameBegan(at(15ms));
    frames.frameShown(at(24ms));
    frames.frameBegan(at(31ms));
    EXPECT_FALSE(frames.frameShown(at(40ms)).has_value());
}

TEST(KeyFramesTest, AFrameThatBeganBeforeThePressDoesNotCount)
{
    KeyFrames frames;
    frames.frameBegan(at(5ms));
    frames.pressed(at(10ms));
    frames.handled(at(12ms));
    EXPECT_FALSE(frames.frameShown(at(14ms)).has_value());
    frames.frameBegan(at(16ms));
    EXPECT_EQ(frames.frameShown(at(20ms)), 10ms);
}

TEST(KeyFramesTest, AFrameDuringTheHandlingOfTheKeyDoesNotCount)
{
    KeyFrames frames;
    frames.pressed(at(10ms));
    frames.frameBegan(at(11ms));
    EXPECT_FALSE(frames.frameShown(at(14ms)).has_value());
    frames.handled(at(30ms));
    frames.frameBegan(at(31ms));
    EXPECT_EQ(frames.frameShown(at(40ms)), 30ms);
}

TEST(KeyFramesTest, ALongHandlingCounts)
{
    KeyFrames frames;
    frames.pressed(at(0ms));
    frames.handled(at(900ms));
    frames.frameBegan(at(905ms));
    EXPECT_EQ(frames.frameShown(at(910ms)), 910ms);
}

TEST(KeyFramesTest, ALaterFrameShowsSomethingElse)
{
    KeyFrames frames;
    frames.pressed(at(0ms));
    frames.handled(at(1ms));
    frames.frameBegan(at(1ms) + KeyFrames::LongestWait + 1ms);
    EXPECT_FALSE(frames.frameShown(at(200ms)).has_value());
}

TEST(KeyFramesTest, OfTwoPressesBeforeAFrameTheFirstCounts)
{
    KeyFrames frames;
    frames.pressed(at(0ms));
    frames.handled(at(1ms));
    frames.pressed(at(10ms));
    frames.handled(at(11ms));
    frames.frameBegan(at(12ms));
    EXPECT_EQ(frames.frameShown(at(20ms)), 20ms);
}

TEST(KeyFramesTest, APressAfterOneThatChangedNothingCountsFromItsOwnTime)
{
    KeyFrames frames;
    frames.pressed(at(0ms));
    frames.handled(at(1ms));
    frames.pressed(at(500ms));
    frames.handled(at(501ms));
    frames.frameBegan(at(502ms));
    EXPECT_EQ(frames.frameShown(at(510ms)), 10ms);
}

} // namespace
