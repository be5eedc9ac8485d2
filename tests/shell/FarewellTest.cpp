#include "shell/Farewell.h"

#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class FarewellTest : public AppStoreFixture
{
protected:
    void SetUp() override
    {
        startSession();
        reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
        farewell = std::make_unique<Farewell>(clock, *store);
        ended = std::make_unique<QSignalSpy>(farewell.get(), &Farewell::ended);
        windows = std::make_unique<QSignalSpy>(farewell.get(), &Farewell::windowWanted);
    }

    std::unique_ptr<Farewell> farewell;
    std::unique_ptr<QSignalSpy> ended;
    std::unique_ptr<QSignalSpy> windows;
};

TEST_F(FarewellTest, withNothingUnderWayTheProgramEndsAtOnce)
{
    farewell->begin(Farewell::Reason::User);
    EXPECT_EQ(ended->count(), 1);
    EXPECT_EQ(windows->count(), 0);
}

TEST_F(FarewellTest, aWriteThatIsAnsweredSoonEndsTheProgramWithoutAWord)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    farewell->begin(Farewell::Reason::User);
    EXPECT_EQ(ended->count(), 0);
    clock.advance(600ms);
    service->updateCalls[0].finish();

    EXPECT_EQ(ended->count(), 1);
    EXPECT_EQ(windows->count(), 0);
}

TEST_F(FarewellTest, aWriteThatTakesLongerIsToldAndEndsTheProgramWhenItIsAnswered)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    store->rename(u"WEB-2"_s, u"Deux"_s);
    farewell->begin(Farewell::Reason::User);
    clock.advance(700ms);
    EXPECT_TRUE(farewell->isShown());
    EXPECT_EQ(windows->count(), 1);
    EXPECT_TRUE(farewell->text().startsWith(u"2 modifications ne sont pas encore enregistrées."_s));

    service->updateCalls[1].finish();
    EXPECT_TRUE(farewell->text().startsWith(u"1 modification n'est pas encore enregistrée."_s));
    service->updateCalls[0].finish();
    EXPECT_EQ(ended->count(), 1);
    EXPECT_FALSE(farewell->isShown());
}

TEST_F(FarewellTest, transitionsThatWaitForTheirTurnAreWaitedForToo)
{
    IssueList many;
    QStringList keys;
    for (int i = 0; i < 10; ++i) {
        keys += u"WEB-%1"_s.arg(i);
        many += sampleIssue(keys.last());
    }
    reloadWith(many);
    const IssueStatus done = IssueStatus::guessed(u"Terminé"_s);
    service->performCalls.answerWith();
    const int before = service->transitionsCalls.count();
    store->setStatus(done, keys);
    farewell->begin(Farewell::Reason::User);
    // Each change of status requests the available transitions twice: before the change and after it.
    for (int i = before; i < before + 19; ++i)
        service->transitionsCalls[i].finish({{u"t"_s, u"Terminer"_s, done}});
    EXPECT_EQ(ended->count(), 0);
    service->transitionsCalls[before + 19].finish({{u"t"_s, u"Terminer"_s, done}});

    EXPECT_EQ(service->performCalls.count(), 10);
    EXPECT_EQ(ended->count(), 1);
}

TEST_F(FarewellTest, aSiteThatDoesNotAnswerIsToldAndTheUserDecides)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    farewell->begin(Farewell::Reason::User);
    clock.advance(10s);
    EXPECT_EQ(farewell->title(), u"Jira ne répond pas"_s);
    clock.advance(3600s);
    EXPECT_EQ(ended->count(), 0);
    farewell->leave();
    EXPECT_EQ(ended->count(), 1);
}

TEST_F(FarewellTest, whoStaysGoesOnWithTheProgramAndCanEndItLater)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    farewell->begin(Farewell::Reason::User);
    clock.advance(1s);
    farewell->stay();
    EXPECT_FALSE(farewell->isShown());
    service->updateCalls[0].finish();
    clock.advance(60s);
    EXPECT_EQ(ended->count(), 0);

    farewell->begin(Farewell::Reason::User);
    EXPECT_EQ(ended->count(), 1);
}

TEST_F(FarewellTest, aChangeThatIsRefusedMeanwhileIsToldBeforeTheEnd)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    farewell->begin(Farewell::Reason::User);
    const JiraError refusal(JiraError::Http{500, u"Panne."_s});
    service->updateCalls[0].fail(refusal);

    EXPECT_EQ(ended->count(), 0);
    EXPECT_TRUE(farewell->isShown());
    EXPECT_EQ(farewell->title(), u"Modification refusée"_s);
    EXPECT_EQ(farewell->text(), refusal.message());
}

TEST_F(FarewellTest, aRefusalWhileTheProgramGoesOnIsOnlyAToast)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    service->updateCalls[0].fail(JiraError(JiraError::Http{500, u"Panne."_s}));
    EXPECT_FALSE(farewell->isShown());
    EXPECT_EQ(store->toasts().size(), 1);
}

TEST_F(FarewellTest, theSystemDoesNotWaitForAnAnswerOfTheUser)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    farewell->begin(Farewell::Reason::System);
    clock.advance(10s);
    EXPECT_EQ(farewell->title(), u"Jira ne répond pas"_s);
    EXPECT_EQ(ended->count(), 0) << "there is a moment to read it";
    clock.advance(4s);
    EXPECT_EQ(ended->count(), 1);
}

TEST_F(FarewellTest, writesOfASessionThatIsOverAreWaitedFor)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    store->signOut();
    farewell->begin(Farewell::Reason::User);
    EXPECT_EQ(ended->count(), 0);
    service->updateCalls[0].finish();
    EXPECT_EQ(ended->count(), 1);
}

} // namespace
