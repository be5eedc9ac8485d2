#include "screens/theme/KeyColumn.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

int columnOf(const QStringList &keys)
{
    return keyColumnWidth(keys, [](const QString &key) { return qreal(key.size()) * 7.5; });
}

} // namespace

TEST(KeyColumnWidth, TwoScreensWithDifferentKeyLengthsGiveDifferentColumns)
{
    EXPECT_LT(columnOf({u"MOB-1"_s, u"MOB-12"_s}), columnOf({u"MOB-1"_s, u"MOB-1234"_s}));
    EXPECT_EQ(columnOf({u"MOB-12"_s}), 45 + 4);
}

TEST(KeyColumnWidth, AnEmptyListGives36)
{
    EXPECT_EQ(columnOf({}), 36);
}

TEST(KeyColumnWidth, ALongProjectKeyDoesNotEatTheRow)
{
    EXPECT_EQ(columnOf({u"UNPROJETAUNOMTRESLONG-123456"_s}), 150);
}
