#include "model/ParsedInteger.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

TEST(ParsedInteger, ReadsDigitsWithAnOptionalSign)
{
    EXPECT_EQ(parsedInteger(u"42"), 42);
    EXPECT_EQ(parsedInteger(u"+42"), 42);
    EXPECT_EQ(parsedInteger(u"-42"), -42);
    EXPECT_EQ(parsedInteger(u"007"), 7);
}

TEST(ParsedInteger, RefusesEverythingElse)
{
    for (const QStringView text :
         {u"", u"+", u"-", u"+-1", u" 1", u"1 ", u"1_0", u"0x10", u"1.0", u"1e3", u"٣", u"a"})
        EXPECT_EQ(parsedInteger(text), std::nullopt) << text.toString().toStdString();
}

TEST(ParsedInteger, ReachesTheEndsOf64BitsAndNoFurther)
{
    EXPECT_EQ(parsedInteger(u"9223372036854775807"), std::numeric_limits<qint64>::max());
    EXPECT_EQ(parsedInteger(u"-9223372036854775808"), std::numeric_limits<qint64>::min());
    EXPECT_EQ(parsedInteger(u"9223372036854775808"), std::nullopt);
}

} // namespace
