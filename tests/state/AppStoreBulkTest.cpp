#include "model/JiraError.h"
#include "state/AppStoreFixture.h"
#include "support/ComputationLog.h"

#include <ctime>
#include <functional>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

constexpr int Many = 300;
constexpr int AtOnce = 8;
const JiraError Refused(JiraError::Http{409, u"Refusé."_s});

/// A change of status on many issues at once.
class AppStoreBulkTest : public AppStoreFixture
{
protected:
    void SetUp() override
    {
        IssueList issues;
        for (int i = 1; i <= Many; ++i) {
            issues += sampleIssue(u"WEB-%1"_s.arg(i));
            allKeys += issues.last()->key;
        }
        startSession();
        reloadWith(issues);
        answerEverything();
        service->issuesCalls.answerWith(issues);
        const TaskResult<void> mine(store->refreshMyIssues());
        holdEverything();
    }

    int pendingTransitions()
    {
        int pending = 0;
        for (int i = 0; i < service->transitionsCalls.count(); ++i)
            pending += service->transitionsCalls[i].isPending();
        for (int i = 0; i < service->performCalls.count(); ++i)
            pending += service->performCalls[i].isPending();
        return pending;
    }

    /// Runs one step of the UI thread and updates the maximum duration and the maximum amount of work of a step.
    void step(const std::function<void()> &run)
    {
        const ComputationLog log;
        const int updates = store->issueList()->revision();
        const std::clock_t start = std::clock();
        run();
        longest = std::max(longest, std::clock() - start);
        mostUpdates = std::max(mostUpdates, store->issueList()->revision() - updates);
        mostGroupings = std::max(mostGroupings, log.count(u"groups"_s));
        mostUnderWay = std::max(mostUnderWay, pendingTransitions());
    }

    static bool isRefused(const QString &key) { return key.endsWith(u'7'); }

    /// Answers the first pending call. Returns false if there is none.
    bool answerNext()
    {
        for (; nextTransitions < service->transitionsCalls.count(); ++nextTransitions) {
            if (auto &call = service->transitionsCalls[nextTransitions]; call.isPending()) {
                step([&] { call.finish({{u"t"_s, u"Finir"_s, Closed}}); });
                return true;
            }
        }
        for (; nextPerform < service->performCalls.count(); ++nextPerform) {
            auto &call = service->performCalls[nextPerform];
            if (!call.isPending())
                continue;
            step([&] { isRefused(call.argument<1>()) ? call.fail(Refused) : call.finish(); });
            return true;
        }
        return false;
    }

    const IssueStatus Closed{u"11"_s, u"Terminé"_s, u"done"_s};
    QStringList allKeys;
    int nextTransitions = 0;
    int nextPerform = 0;
    std::clock_t longest = 0;
    int mostUpdates = 0;
    int mostGroupings = 0;
    int mostUnderWay = 0;
};

TEST_F(AppStoreBulkTest, threeHundredIssuesShowAtOnceAndMoveEightAtATimeAndEachFailureReturnsAlone)
{
    nextTransitions = service->transitionsCalls.count();
    step([this] { store->setStatus(Closed, allKeys); });
    const double first = 1000.0 * double(longest) / CLOCKS_PER_SEC;
    for (const SharedIssue &issue : store->issues())
        ASSERT_EQ(issue->status, Closed);
    for (const SharedIssue &issue : store->myOpenIssues())
        ASSERT_EQ(issue->status, Closed);
    EXPECT_EQ(pendingTransitions(), AtOnce) << "the others wait";
    while (answerNext()) {
    }

    EXPECT_EQ(service->performCalls.count(), Many);
    EXPECT_EQ(mostUnderWay, AtOnce);
    EXPECT_EQ(mostUpdates, 1) << "no step brings the list up to date more than once";
    EXPECT_LE(mostGroupings, 1);
    int refused = 0;
    for (const SharedIssue &issue : store->issues()) {
        refused += isRefused(issue->key);
        EXPECT_EQ(issue->status.groupKey() == Closed.groupKey(), !isRefused(issue->key));
    }
    EXPECT_EQ(refused, Many / 10);
    EXPECT_EQ(store->toasts().size(), refused) << "one for each failure";
    const double time = 1000.0 * double(longest) / CLOCKS_PER_SEC;
    RecordProperty("longestStepMs", std::to_string(time));
    std::cout << "longest step of " << Many << " transitions: " << time
              << " ms of processor time, the first " << first << " ms\n";
}

TEST_F(AppStoreBulkTest, twoBulkChangesShareTheEightTurns)
{
    const int before = service->transitionsCalls.count();
    store->setStatus(Closed, allKeys.first(10));
    store->setStatus(Closed, allKeys.sliced(10, 10));
    EXPECT_EQ(service->transitionsCalls.count(), before + AtOnce);
}

TEST_F(AppStoreBulkTest, goneWithTransitionsUnderWayAndWaiting)
{
    const int before = service->transitionsCalls.count();
    store->setStatus(Closed, allKeys);
    store.reset();
    service->transitionsCalls.cancelPending();
    EXPECT_EQ(service->transitionsCalls.count(), before + AtOnce)
        << "what waited asks for nothing any more";
}

} // namespace
