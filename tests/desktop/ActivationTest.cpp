#include "desktop/Activation.h"

#include <gtest/gtest.h>

TEST(Activation, TheTimeOfAStartupIdIsBehindItsLastMark)
{
    EXPECT_EQ(Activation::of({}, "host_TIME1_TIME4711").time(), 4711U);
    EXPECT_EQ(Activation::atTime(4711).time(), 4711U);
}

TEST(Activation, WithoutAReadableTimeItIsUnknown)
{
    EXPECT_EQ(Activation::of("token", "host-12").time(), 0U);
    EXPECT_EQ(Activation::of({}, "host_TIME").time(), 0U);
    EXPECT_EQ(Activation::of({}, "host_TIME99999999999").time(), 0U);
    EXPECT_EQ(Activation::of({}, "host_TIME-5").time(), 0U);
    EXPECT_EQ(Activation::atTime(0), Activation());
}

TEST(Activation, TextsThatAreTooLongAreLeftOut)
{
    const QByteArray longest(Activation::LongestText, 'x');
    EXPECT_EQ(Activation::of(longest, longest + 'x'), (Activation{longest, {}}));
    EXPECT_EQ(Activation::of(longest + 'x', longest), (Activation{{}, longest}));
}

TEST(Activation, TheTokenIsLeftToTheNextWindow)
{
    qputenv("XDG_ACTIVATION_TOKEN", "earlier");
    Activation().use();
    EXPECT_EQ(Activation::ofEnvironment().token, "earlier");
    Activation::of("later", {}).use();
    EXPECT_EQ(Activation::ofEnvironment().token, "later");
    qunsetenv("XDG_ACTIVATION_TOKEN");
}
