#include "model/JSONValue.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

TEST(JSONValueString, OfATextIsTheText)
{
    EXPECT_EQ(JSONValue(u"abc"_s).string(), u"abc"_s);
    EXPECT_EQ(JSONValue(u"abc").string(), u"abc"_s);
    EXPECT_EQ(JSONValue(QString()).string(), QString());
}

TEST(JSONValueString, OfAWholeNumberHasNoFraction)
{
    EXPECT_EQ(JSONValue(2.0).string(), u"2"_s);
    EXPECT_EQ(JSONValue(-17).string(), u"-17"_s);
    EXPECT_EQ(JSONValue(-0.0).string(), u"0"_s);
    EXPECT_EQ(JSONValue(9007199254740992.0).string(), u"9007199254740992"_s);
    EXPECT_EQ(JSONValue(1e20).string(), u"100000000000000000000"_s);
}

TEST(JSONValueString, OfARealIsItsShortestForm)
{
    EXPECT_EQ(JSONValue(2.5).string(), u"2.5"_s);
    EXPECT_EQ(JSONValue(0.1).string(), u"0.1"_s);
}

TEST(JSONValueString, OfOtherKindsIsNothing)
{
    EXPECT_EQ(JSONValue(true).string(), std::nullopt);
    EXPECT_EQ(JSONValue().string(), std::nullopt);
    EXPECT_EQ(JSONValue(JSONValue::Array{u"a"_s}).string(), std::nullopt);
    EXPECT_EQ(JSONValue(JSONValue::Object{{u"a"_s, 1}}).string(), std::nullopt);
}

TEST(JSONValueInteger, OfANumberIsItsIntegerPart)
{
    EXPECT_EQ(JSONValue(2.9).integer(), 2);
    EXPECT_EQ(JSONValue(-2.9).integer(), -2);
}

TEST(JSONValueInteger, OfANumberBeyondIntegersIsNothing)
{
    EXPECT_EQ(JSONValue(1e19).integer(), std::nullopt);
    EXPECT_EQ(JSONValue(9223372036854775808.0).integer(), std::nullopt);
    EXPECT_EQ(JSONValue(-9223372036854775808.0).integer(), std::numeric_limits<qint64>::min());
    EXPECT_EQ(JSONValue(std::numeric_limits<double>::quiet_NaN()).integer(), std::nullopt);
}

TEST(JSONValueInteger, OfATextIsWhatItSpells)
{
    EXPECT_EQ(JSONValue(u"12"_s).integer(), 12);
    EXPECT_EQ(JSONValue(u"+12"_s).integer(), 12);
    EXPECT_EQ(JSONValue(u"-12"_s).integer(), -12);
    EXPECT_EQ(JSONValue(u"1.5"_s).integer(), std::nullopt);
    EXPECT_EQ(JSONValue(u"abc"_s).integer(), std::nullopt);
}

TEST(JSONValueInteger, OfOtherKindsIsNothing)
{
    EXPECT_EQ(JSONValue(true).integer(), std::nullopt);
    EXPECT_EQ(JSONValue().integer(), std::nullopt);
    EXPECT_EQ(JSONValue(JSONValue::Array{1}).integer(), std::nullopt);
}

TEST(JSONValue, IsMadeFromALiteralOfEachKind)
{
    EXPECT_TRUE(JSONValue().isNull());
    EXPECT_NE(JSONValue(true).asBool(), nullptr);
    EXPECT_NE(JSONValue(1).asNumber(), nullptr);
    EXPECT_NE(JSONValue(u"a").asString(), nullptr);
    EXPECT_NE((JSONValue(JSONValue::Array{1, u"a"_s, true}).asArray()), nullptr);
    EXPECT_NE((JSONValue(JSONValue::Object{{u"a"_s, JSONValue()}}).asObject()), nullptr);
}

TEST(JSONValue, ComparesAndHashesByValueAndKind)
{
    const JSONValue nested(JSONValue::Object{{u"a"_s, JSONValue::Array{1, JSONValue()}}});
    EXPECT_EQ(nested, JSONValue(JSONValue::Object{{u"a"_s, JSONValue::Array{1, JSONValue()}}}));
    EXPECT_EQ(qHash(nested),
              qHash(JSONValue(JSONValue::Object{{u"a"_s, JSONValue::Array{1, JSONValue()}}})));
    EXPECT_NE(nested, JSONValue(JSONValue::Object{{u"a"_s, JSONValue::Array{2, JSONValue()}}}));
    EXPECT_NE(JSONValue(1), JSONValue(true));
    EXPECT_NE(JSONValue(1), JSONValue(u"1"_s));
    EXPECT_NE(JSONValue(), JSONValue(JSONValue::Array()));
    EXPECT_NE(qHash(JSONValue(u"a"_s)), qHash(JSONValue(u"b"_s)));
}

} // namespace
