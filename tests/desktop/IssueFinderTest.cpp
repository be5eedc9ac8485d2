#include "desktop/IssueFinder.h"

#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;

class IssueFinderTest : public AppStoreFixture
{
protected:
    IssueFinderTest() { finder = std::make_unique<IssueFinder>(*store); }

    static Issue titled(const QString &key, const QString &summary)
    {
        Issue issue = sampleIssue(key);
        issue.summary = summary;
        return issue;
    }
    QStringList keysFor(const QStringList &words)
    {
        QStringList keys;
        for (const QString &id : finder->matching(words))
            keys += finder->found(id).value_or(IssueFinder::Found()).key;
        return keys;
    }

    std::unique_ptr<IssueFinder> finder;
};

TEST_F(IssueFinderTest, FindsByKeyAndByWordsWhateverTheirCaseAndAccents)
{
    startSession();
    reloadWith({titled(u"MOB-1"_s, u"Été à Nîmes"_s), titled(u"MOB-12"_s, u"Hiver"_s)});
    EXPECT_EQ(keysFor({u"mob-12"_s}), QStringList{u"MOB-12"_s});
    EXPECT_EQ(keysFor({u"NIMES"_s, u"ete"_s}), QStringList{u"MOB-1"_s});
    EXPECT_EQ(keysFor({u"mob"_s}), (QStringList{u"MOB-1"_s, u"MOB-12"_s}));
    EXPECT_TRUE(keysFor({u"nimes"_s, u"hiver"_s}).isEmpty());
}

TEST_F(IssueFinderTest, ClosedIssuesAreNotFound)
{
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s, u"Terminé"_s), sampleIssue(u"MOB-2"_s)});
    EXPECT_EQ(keysFor({u"mob"_s}), QStringList{u"MOB-2"_s});
}

TEST_F(IssueFinderTest, AFoundIssueIsDescribedByKeyAndStatus)
{
    startSession();
    reloadWith({titled(u"MOB-1"_s, u"Été"_s)});
    const auto found = finder->found(finder->matching({u"mob"_s}).value(0));
    ASSERT_TRUE(found);
    EXPECT_EQ(*found, (IssueFinder::Found{u"MOB-1"_s, u"Été"_s, u"MOB-1 · À faire"_s}));
}

TEST_F(IssueFinderTest, ASearchAsksTheServiceNothing)
{
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s)});
    const auto asked = [this] {
        return service->issuesCalls.count() + service->searchCalls.count() +
               service->issueCalls.count() + service->commentsCalls.count() +
               service->transitionsCalls.count() + service->projectsCalls.count() +
               service->statusesCalls.count() + service->assignableUsersCalls.count();
    };
    const auto before = asked();
    for (const QString &word : {u"m"_s, u"mob"_s, u"mob-1"_s, u"elsewhere"_s})
        keysFor({word});
    clock.advance(std::chrono::seconds(2));
    EXPECT_EQ(asked(), before);
}

TEST_F(IssueFinderTest, WithoutASessionNothingIsFound)
{
    EXPECT_TRUE(finder->matching({u"mob"_s}).isEmpty());
    EXPECT_FALSE(finder->found(u"0:MOB-1"_s));
}

TEST_F(IssueFinderTest, WhatWasFoundInASessionThatHasEndedIsUnknown)
{
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s)});
    const QString earlier = finder->matching({u"mob"_s}).value(0);
    ASSERT_TRUE(finder->found(earlier));
    store->signOut();
    EXPECT_FALSE(finder->found(earlier));
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s)});
    const QString later = finder->matching({u"mob"_s}).value(0);
    EXPECT_TRUE(finder->found(later));
    EXPECT_FALSE(finder->found(earlier));
}

TEST_F(IssueFinderTest, NothingIsFoundForHostileSearches)
{
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s)});
    EXPECT_TRUE(finder->matching({}).isEmpty());
    EXPECT_TRUE(finder->matching({QString(), u"   "_s}).isEmpty());
    EXPECT_TRUE(finder->matching({QString(10'000, u'm')}).isEmpty());
    EXPECT_TRUE(finder->matching(QStringList(IssueFinder::MostWords + 1, u"m"_s)).isEmpty());
    EXPECT_EQ(finder->matching(QStringList(IssueFinder::MostWords, u"m"_s)).size(), 1);
    EXPECT_TRUE(finder->matching({QString(QChar(0xD800)), QString(QChar(u'\0'))}).isEmpty());
}

TEST_F(IssueFinderTest, OtherIdsAreUnknown)
{
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s)});
    const QString session = finder->matching({u"mob"_s}).value(0).section(u':', 0, 0);
    for (const QString &id :
         {QString(), u":"_s, u"MOB-1"_s, session, session + u":"_s, session + u":MOB-2"_s,
          session + u":MOB-1:"_s, u"99:MOB-1"_s, session + u':' + QString(10'000, u'M')})
        EXPECT_FALSE(finder->found(id)) << id.left(40).toStdString();
}
