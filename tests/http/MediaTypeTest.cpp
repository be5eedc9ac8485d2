#include "http/NetworkRequest.h"

#include <gtest/gtest.h>

TEST(MediaType, IsInLowerCaseAndWithoutParameters)
{
    EXPECT_EQ(mediaType("text/html"), "text/html");
    EXPECT_EQ(mediaType("Text/HTML; charset=UTF-8"), "text/html");
    EXPECT_EQ(mediaType(" image/png ;a=b;c=d"), "image/png");
    EXPECT_EQ(mediaType(""), "");
}
