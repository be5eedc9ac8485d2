#include "screens/attachments/preview/PreviewPlace.h"

#include <gtest/gtest.h>

namespace {

const QRect Screen(0, 30, 1920, 1050);

} // namespace

TEST(PreviewPlace, IsTheMiddleOfTheWindow)
{
    EXPECT_EQ(previewPlace({900, 700}, {400, 100, 1000, 800}, Screen), QRect(450, 150, 900, 700));
}

TEST(PreviewPlace, StaysOnTheScreen)
{
    EXPECT_EQ(previewPlace({900, 700}, {-300, 0, 600, 400}, Screen), QRect(0, 30, 900, 700));
    EXPECT_EQ(previewPlace({900, 700}, {1700, 900, 600, 400}, Screen), QRect(1020, 380, 900, 700));
}

TEST(PreviewPlace, IsNoLargerThanTheScreen)
{
    EXPECT_EQ(previewPlace({2000, 1500}, {0, 0, 600, 400}, Screen), Screen);
}

TEST(PreviewPlace, MayBeOnAScreenToTheLeftOfTheFirst)
{
    const QRect left(-1280, 0, 1280, 1024);
    EXPECT_EQ(previewPlace({800, 600}, {-1200, 100, 1000, 800}, left), QRect(-1100, 200, 800, 600));
}
