#include "state/drafts/SentDescriptions.h"

#include "model/JiraError.h"
#include "richtext/ADFMarkdown.h"
#include "richtext/ADFQueries.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;

class SentDescriptionsTest : public AppStoreFixture
{
protected:
    SentDescriptionsTest()
    {
        startSession();
        load(u"MOB-1"_s, u"Avant"_s);
        load(u"MOB-2"_s, u"Avant"_s);
    }

    void load(const QString &key, const QString &description)
    {
        Issue issue = sampleIssue(key);
        issue.hasDetails = true;
        issue.description = ADFMarkdown::document(description);
        const TaskResult<void> loaded(store->loadDetails(key));
        service->issueCalls.last().finish(issue);
    }
    void save(const QString &text, const QString &key = u"MOB-1"_s)
    {
        SentDescriptions::of(*store).save(text, key);
    }
    void refuse(int index) { service->updateCalls[index].fail(refusal); }
    void accept(int index) { service->updateCalls[index].finish({}); }
    QString shown(const QString &key = u"MOB-1"_s)
    {
        return ADF::plainText(*(*store->issue(key))->description);
    }
    QString kept(const QString &key = u"MOB-1"_s)
    {
        const auto place = AbandonedTexts::of(*store).place(AbandonedTexts::Kind::Description, key);
        return place.text().value_or(AbandonedText()).body;
    }

    const JiraError refusal{JiraError::InvalidResponse{}};
};

TEST_F(SentDescriptionsTest, ARefusedTextIsKeptAndTheDescriptionRestored)
{
    save(u"Après **tout**"_s);
    EXPECT_EQ(shown(), u"Après tout"_s);
    EXPECT_EQ(kept(), QString());
    refuse(0);
    EXPECT_EQ(shown(), u"Avant"_s);
    EXPECT_EQ(kept(), u"Après **tout**"_s);
}

TEST_F(SentDescriptionsTest, AnAcceptedTextIsNotKept)
{
    save(u"Après"_s);
    accept(0);
    EXPECT_EQ(shown(), u"Après"_s);
    EXPECT_EQ(kept(), QString());
}

TEST_F(SentDescriptionsTest, TheRefusalOfAnotherWriteKeepsNothing)
{
    save(u"Après"_s);
    store->rename(u"MOB-1"_s, u"Autre titre"_s);
    save(u"Ensuite"_s, u"MOB-2"_s);
    refuse(1);
    EXPECT_EQ(kept(), QString());
    refuse(2);
    EXPECT_EQ(kept(), QString());
    EXPECT_EQ(kept(u"MOB-2"_s), u"Ensuite"_s);
    EXPECT_EQ(shown(), u"Après"_s);
}

TEST_F(SentDescriptionsTest, OfTwoTextsTheRefusedOneIsKeptWhicheverItIs)
{
    save(u"Un"_s);
    save(u"Deux"_s);
    refuse(0);
    EXPECT_EQ(kept(), u"Un"_s);
    refuse(1);
    EXPECT_EQ(kept(), u"Deux"_s);
    EXPECT_EQ(shown(), u"Avant"_s);
}

TEST_F(SentDescriptionsTest, TheLaterOfTwoTextsIsRefusedFirst)
{
    save(u"Un"_s);
    save(u"Deux"_s);
    refuse(1);
    EXPECT_EQ(kept(), u"Deux"_s);
    refuse(0);
    EXPECT_EQ(kept(), u"Un"_s);
}

TEST_F(SentDescriptionsTest, ARefusalAfterANewerRecordArrivedKeepsTheText)
{
    save(u"Après"_s);
    load(u"MOB-1"_s, u"D'un autre"_s);
    EXPECT_EQ(shown(), u"Après"_s);
    refuse(0);
    EXPECT_EQ(shown(), u"D'un autre"_s);
    EXPECT_EQ(kept(), u"Après"_s);
}

TEST_F(SentDescriptionsTest, ARefusalAtOnceKeepsTheText)
{
    service->updateCalls.failWith(refusal);
    save(u"Après"_s);
    EXPECT_EQ(shown(), u"Avant"_s);
    EXPECT_EQ(kept(), u"Après"_s);
}

TEST_F(SentDescriptionsTest, TheEndOfTheSessionForgetsWhatIsUnderWay)
{
    save(u"Après"_s);
    store->signOut();
    startSession();
    refuse(0);
    EXPECT_EQ(kept(), QString());
}
