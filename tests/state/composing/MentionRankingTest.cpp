#include "state/composing/MentionRanking.h"

#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Sample::user;

namespace {

JiraUser userWithEmail(const QString &id, const QString &name, const QString &email)
{
    JiraUser result = user(id, name);
    result.email = email;
    return result;
}

QStringList found(const QString &words, const QList<JiraUser> &pool)
{
    QStringList ids;
    for (const JiraUser &each : mentionSuggestions(words, pool))
        ids.append(each.id);
    return ids;
}

} // namespace

TEST(MentionRanking, WithoutWordsTheFirstSixOfThePoolAreSuggestedInItsOrder)
{
    QList<JiraUser> pool;
    for (const QString &id : {u"g"_s, u"b"_s, u"a"_s, u"f"_s, u"c"_s, u"e"_s, u"d"_s})
        pool.append(user(id, id));
    EXPECT_EQ(found({}, pool), (QStringList{u"g"_s, u"b"_s, u"a"_s, u"f"_s, u"c"_s, u"e"_s}));
    EXPECT_EQ(found({}, pool.first(2)), (QStringList{u"g"_s, u"b"_s}));
}

TEST(MentionRanking, AUserStandsOnceAtTheFirstPlace)
{
    const QList<JiraUser> pool{user(u"1"_s, u"Nora"_s), user(u"2"_s, u"Noam"_s),
                               user(u"1"_s, u"Autre"_s)};
    EXPECT_EQ(found({}, pool), (QStringList{u"1"_s, u"2"_s}));
    EXPECT_EQ(found(u"au"_s, pool), QStringList()) << "the second record is not read";
}

TEST(MentionRanking, TheStartOfANameComesBeforeTheStartOfAnotherWord)
{
    const QList<JiraUser> pool{user(u"maud"_s, u"Maud Nogaret"_s), user(u"nora"_s, u"Nora Vidal"_s),
                               user(u"noam"_s, u"Noam Tessier"_s)};
    EXPECT_EQ(found(u"no"_s, pool), (QStringList{u"nora"_s, u"noam"_s, u"maud"_s}));
}

TEST(MentionRanking, OneNameThatStartsWithTheWordsHidesOneThatOnlyContainsThem)
{
    const QList<JiraUser> pool{user(u"leonor"_s, u"Léonor"_s), user(u"nora"_s, u"Nora"_s)};
    EXPECT_EQ(found(u"nor"_s, pool), QStringList{u"nora"_s});
    EXPECT_EQ(found(u"eon"_s, pool), QStringList{u"leonor"_s}) << "there is no better one";
}

TEST(MentionRanking, AnEMailThatStartsWithTheWordsIsAWeakMatch)
{
    const QList<JiraUser> pool{userWithEmail(u"x"_s, u"Basile"_s, u"nora.b@orvantis.fr"_s),
                               userWithEmail(u"y"_s, u"Odile"_s, u"a.nora@orvantis.fr"_s)};
    EXPECT_EQ(found(u"nora"_s, pool), QStringList{u"x"_s});
    EXPECT_EQ(found(u"nora"_s, pool + QList{user(u"z"_s, u"Nora"_s)}), QStringList{u"z"_s});
}

TEST(MentionRanking, CaseAndAccentsAreIgnoredOnBothSides)
{
    const QList<JiraUser> pool{user(u"lea"_s, u"Léa Élan"_s), user(u"leo"_s, u"Leo"_s)};
    EXPECT_EQ(found(u"LÉ"_s, pool), (QStringList{u"lea"_s, u"leo"_s}));
    EXPECT_EQ(found(u"le"_s, pool), (QStringList{u"lea"_s, u"leo"_s}));
    EXPECT_EQ(found(u"elan"_s, pool), QStringList{u"lea"_s});
}

TEST(MentionRanking, AFirstNameWithTheStartOfASurnameIsFoundFromTheStart)
{
    const QList<JiraUser> pool{user(u"noam"_s, u"Noam Tessier"_s), user(u"x"_s, u"Noam Abel"_s)};
    EXPECT_EQ(found(u"noam t"_s, pool), QStringList{u"noam"_s});
}

TEST(MentionRanking, SixAtMostAreSuggestedForWords)
{
    QList<JiraUser> pool;
    for (int i = 0; i < 9; ++i)
        pool.append(user(QString::number(i), u"Nora %1"_s.arg(i)));
    EXPECT_EQ(found(u"nora"_s, pool),
              (QStringList{u"0"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
}

TEST(MentionRanking, NobodyMatchesUnknownWords)
{
    EXPECT_EQ(found(u"zz"_s, {user(u"nora"_s, u"Nora"_s)}), QStringList());
}
