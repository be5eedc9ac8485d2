#include "derivation/KeyIndex.h"

#include <QRandomGenerator>
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

TEST(KeyIndex, AnEmptyListHasNoKey)
{
    EXPECT_EQ(KeyIndex().find(u"a"), std::nullopt);
    EXPECT_EQ(KeyIndex(std::vector<QStringView>()).find(u"a"), std::nullopt);
}

TEST(KeyIndex, OfAListThatBecameEmptyAndFilledAgainOnlyWhatIsThereIsFound)
{
    const QString next = u"WEB-0"_s;
    for (int number = 1; number < 50; ++number) {
        const QString key = u"WEB-"_s + QString::number(number);
        KeyIndex index({key});
        ASSERT_EQ(index.remove(0, 1), KeyIndex::Outcome::Followed);
        ASSERT_EQ(index.insert(0, next), KeyIndex::Outcome::Followed);
        EXPECT_EQ(index.find(next), 0);
        EXPECT_EQ(index.find(key), std::nullopt);
        EXPECT_EQ(index.find(u""), std::nullopt) << key.toStdString();
    }
}

TEST(KeyIndex, FollowsRandomStepsOfAList)
{
    QRandomGenerator dice(11);
    QStringList keys;
    for (int number = 0; number < 50; ++number)
        keys.append(QString::number(number));
    KeyIndex index(std::vector<QStringView>(keys.begin(), keys.end()));
    int next = 50;
    int followed = 0;
    for (int step = 0; step < 3000; ++step) {
        const int row = dice.bounded(int(keys.size()));
        const int to = dice.bounded(int(keys.size()));
        KeyIndex::Outcome outcome{};
        switch (dice.bounded(4)) {
        case 0:
            keys.insert(row, QString::number(next++));
            outcome = index.insert(row, keys.at(row));
            break;
        case 1:
            if (keys.size() < 20)
                continue;
            outcome = index.remove(row, 1);
            keys.removeAt(row);
            break;
        case 2:
            keys.move(row, to);
            outcome = index.move(row, 1, to);
            break;
        default:
            keys[row] = QString(keys.at(row).constData(), keys.at(row).size());
            index.relocate(row, keys.at(row));
            outcome = KeyIndex::Outcome::Followed;
        }
        if (outcome == KeyIndex::Outcome::Lost)
            index = KeyIndex(std::vector<QStringView>(keys.begin(), keys.end()));
        followed += outcome == KeyIndex::Outcome::Followed;
        for (int at = 0; at < keys.size(); ++at)
            ASSERT_EQ(index.find(keys.at(at)), at) << step;
        ASSERT_EQ(index.find(u"gone"), std::nullopt);
    }
    EXPECT_GT(followed, 2500) << "or it is made anew too often";
}

TEST(KeyIndex, AStretchThatMovesOrGoesIsFollowed)
{
    KeyIndex index({u"a", u"b", u"c", u"d", u"e"});
    EXPECT_EQ(index.move(0, 2, 3), KeyIndex::Outcome::Followed);
    EXPECT_EQ(index.find(u"a"), 3);
    EXPECT_EQ(index.find(u"e"), 2);
    EXPECT_EQ(index.remove(1, 2), KeyIndex::Outcome::Followed);
    EXPECT_EQ(index.find(u"a"), 1);
    EXPECT_EQ(index.find(u"d"), std::nullopt);
}

TEST(KeyIndex, RepeatedKeysAreNotFollowed)
{
    KeyIndex index({u"a", u"b", u"a"});
    EXPECT_EQ(index.remove(0, 1), KeyIndex::Outcome::Lost);
    KeyIndex other({u"a", u"b"});
    EXPECT_EQ(other.insert(0, u"b"), KeyIndex::Outcome::Lost);
}
