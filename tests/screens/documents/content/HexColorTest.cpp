#include "screens/documents/content/HexColor.h"

#include <gtest/gtest.h>

TEST(HexColor, SixDigitsAreRedGreenAndBlue)
{
    EXPECT_EQ(colorFromHex(u"36b37e"), QColor(0x36, 0xb3, 0x7e));
}

TEST(HexColor, OneLeadingNumberSignIsOptional)
{
    EXPECT_EQ(colorFromHex(u"#FF5630"), QColor(0xff, 0x56, 0x30));
    EXPECT_EQ(colorFromHex(u"##FF5630"), std::nullopt);
}

TEST(HexColor, IsOpaque)
{
    EXPECT_EQ(colorFromHex(u"#000000")->alpha(), 255);
}

TEST(HexColor, AnythingElseIsNoColour)
{
    for (const auto *text : {u"", u"#", u"#fff", u"#ff00ff00", u"red", u"#12345g", u" #123456",
                             u"+12345", u"-12345", u"0x1234", u"１２３４５６"})
        EXPECT_EQ(colorFromHex(text), std::nullopt) << QString::fromUtf16(text).toStdString();
}
