#include "screens/detail/OpenIssue.h"

#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;

class OpenIssueTest : public AppStoreFixture
{
protected:
    void show(const QString &key)
    {
        content.setKey(key);
        content.setStore(store.get());
    }

    OpenIssue content;
};

TEST_F(OpenIssueTest, WhatIsKnownShowsAtOnceAndTheRestIsFetched)
{
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s)});
    const int before = service->issueCalls.count();
    show(u"MOB-1"_s);
    EXPECT_TRUE(content.isKnown());
    EXPECT_EQ(content.title(), u"MOB-1 – Résumé de MOB-1"_s);
    EXPECT_EQ(service->issueCalls.count(), before + 1);
}

TEST_F(OpenIssueTest, AnUnknownIssueIsNamedByItsKeyUntilItIsFetched)
{
    startSession();
    show(u"WEB-7"_s);
    EXPECT_FALSE(content.isKnown());
    EXPECT_EQ(content.title(), u"WEB-7"_s);
    service->issueCalls.last().finish(sampleIssue(u"WEB-7"_s));
    EXPECT_TRUE(content.isKnown());
    EXPECT_EQ(content.title(), u"WEB-7 – Résumé de WEB-7"_s);
}

TEST_F(OpenIssueTest, ARefusalIsTold)
{
    startSession();
    show(u"WEB-7"_s);
    service->issueCalls.last().fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_FALSE(content.errorText().isEmpty());
}

TEST_F(OpenIssueTest, AfterARefusalItCanBeFetchedAgain)
{
    startSession();
    show(u"WEB-7"_s);
    service->issueCalls.last().fail(JiraError(JiraError::InvalidResponse{}));
    content.load();
    service->issueCalls.last().finish(sampleIssue(u"WEB-7"_s));
    EXPECT_TRUE(content.isKnown());
    EXPECT_EQ(content.errorText(), QString());
}

TEST_F(OpenIssueTest, BeforeASessionItWaits)
{
    show(u"WEB-7"_s);
    EXPECT_EQ(service->issueCalls.count(), 0);
    startSession();
    EXPECT_GE(service->issueCalls.count(), 1);
}
