#include "derivation/KeyIndex.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(KeyIndex, FindsEveryKeyOfALongList)
{
    QStringList keys;
    for (int number = 0; number < 5000; ++number)
        keys.append(u"WEB-"_s + QString::number(number));
    const KeyIndex index(std::vector<QStringView>(keys.begin(), keys.end()));
    for (int row = 0; row < keys.size(); ++row)
        ASSERT_EQ(index.find(keys[row]), row);
    EXPECT_EQ(index.find(u"WEB-5000"), std::nullopt);
    EXPECT_EQ(index.find(u""), std::nullopt);
}

TEST(KeyIndex, GivesTheFirstOfRepeatedKeys)
{
    const KeyIndex index({u"a", u"b", u"a"});
    EXPECT_EQ(index.find(u"a"), 0);
}

TEST(KeyIndex, TellsWhereKeysAreRepeated)
{
    EXPECT_EQ(KeyIndex({u"a", u"b", u"a", u"a", u"c", u"b"}).repeats(),
              (std::vector<int>{2, 3, 5}));
    EXPECT_TRUE(KeyIndex({u"a", u"b"}).repeats().empty());
}

TEST(KeyIndex, AnEmptyListHasNoKey)
{
    EXPECT_EQ(KeyIndex().find(u"a"), std::nullopt);
    EXPECT_EQ(KeyIndex(std::vector<QStringView>()).find(u"a"), std::nullopt);
}
