#include "demo/DemoSamples.h"
#include "model/Failure.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Sources whose random numbers a test sets, and that record the largest requested limit.
struct SteeredDraws
{
    int next = 0;
    int largest = -1;

    DemoSources sources()
    {
        return {[this](int limit) {
                    largest = limit;
                    return next;
                },
                countingIDs(), seededFolder()};
    }
};

class DemoServicePause : public testing::Test
{
protected:
    DemoServicePause() { restart(); }

    void restart()
    {
        m_service = std::make_unique<DemoService>(m_clock, m_calendar, m_draws.sources());
    }
    IssueDraft draft() const
    {
        IssueDraft draft;
        draft.projectKey = u"MOB"_s;
        return draft;
    }
    QStringList sprint()
    {
        const TaskResult<IssueList> result(
            m_service->issues(IssueScope::project(u"MOB"_s, ProjectView::Active)));
        m_clock.advance(220ms);
        return keysOf(result.value());
    }

    ManualClock m_clock;
    ManualCalendar m_calendar;
    SteeredDraws m_draws;
    std::unique_ptr<DemoService> m_service;
};

} // namespace

TEST_F(DemoServicePause, lastsEightyMillisecondsAndTheDraw)
{
    m_draws.next = 45;
    const TaskResult<QList<Project>> result(m_service->projects());
    EXPECT_EQ(m_draws.largest, 140);
    m_clock.advance(124ms);
    EXPECT_FALSE(result.isDone());
    m_clock.advance(1ms);
    EXPECT_TRUE(result.isDone());
}

TEST_F(DemoServicePause, isDrawnAfreshForEachCall)
{
    m_draws.next = 0;
    const TaskResult<QList<Project>> quick(m_service->projects());
    m_draws.next = 140;
    const TaskResult<QList<Project>> slow(m_service->projects());
    m_clock.advance(80ms);
    EXPECT_TRUE(quick.isDone());
    m_clock.advance(139ms);
    EXPECT_FALSE(slow.isDone());
    m_clock.advance(1ms);
    EXPECT_TRUE(slow.isDone());
}

TEST_F(DemoServicePause, comesFirstInEveryOperationThatHasOne)
{
    const IssueStatus done = DemoSeed::statuses().at(4);
    const auto waits = [this](auto result) {
        const bool waited = !result.isDone();
        m_clock.advance(80ms);
        return waited && result.isDone();
    };
    EXPECT_TRUE(waits(TaskResult(m_service->projects())));
    EXPECT_TRUE(waits(TaskResult(m_service->issues(IssueScope::myIssues()))));
    EXPECT_TRUE(waits(TaskResult(m_service->search(u"x"_s))));
    EXPECT_TRUE(waits(TaskResult(m_service->issue(u"MOB-101"_s))));
    EXPECT_TRUE(
        waits(TaskResult<void>(m_service->perform({u"t5"_s, done.name(), done}, u"MOB-101"_s))));
    EXPECT_TRUE(waits(
        TaskResult<void>(m_service->update(u"MOB-101"_s, {IssueFieldUpdate::Summary{u"X"_s}}))));
    EXPECT_TRUE(waits(TaskResult<void>(m_service->assign(u"MOB-101"_s, std::nullopt))));
    EXPECT_TRUE(waits(TaskResult(m_service->addComment(u"MOB-101"_s, {}, false))));
    EXPECT_TRUE(waits(TaskResult(m_service->create(draft()))));
    EXPECT_TRUE(waits(TaskResult(m_service->uploadAttachments(u"MOB-101"_s, {}))));
    EXPECT_TRUE(waits(TaskResult<void>(m_service->deleteAttachment(u"x"_s))));
}

TEST_F(DemoServicePause, isAbsentFromTheOthers)
{
    EXPECT_TRUE(TaskResult(m_service->currentUser()).isDone());
    EXPECT_TRUE(TaskResult(m_service->project(u"MOB"_s)).isDone());
    EXPECT_TRUE(TaskResult(m_service->statuses(u"MOB"_s)).isDone());
    EXPECT_TRUE(TaskResult(m_service->priorities()).isDone());
    EXPECT_TRUE(TaskResult(m_service->assignableUsers(u"MOB"_s)).isDone());
    EXPECT_TRUE(TaskResult(m_service->comments(u"MOB-101"_s)).isDone());
    EXPECT_TRUE(TaskResult(m_service->transitions(u"MOB-101"_s)).isDone());
    EXPECT_TRUE(TaskResult(m_service->searchUsers(u"x"_s)).isDone());
    EXPECT_TRUE(TaskResult(m_service->download({})).isDone());
}

TEST_F(DemoServicePause, operationsReadOnlyAfterIt)
{
    m_draws.next = 140;
    const TaskResult<IssueList> list(
        m_service->issues(IssueScope::project(u"MOB"_s, ProjectView::Active)));
    m_draws.next = 0;
    const TaskResult<QString> created(m_service->create(draft()));
    m_clock.advance(220ms);
    EXPECT_TRUE(keysOf(list.value()).contains(created.value()));
}

TEST_F(DemoServicePause, overlappingCreationsGetDifferentNumbers)
{
    m_draws.next = 100;
    const TaskResult<QString> first(m_service->create(draft()));
    m_draws.next = 10;
    const TaskResult<QString> second(m_service->create(draft()));
    m_clock.advance(220ms);
    // The issue numbers are assigned when the waits end, not when they begin.
    EXPECT_EQ(second.value(), u"MOB-115"_s);
    EXPECT_EQ(first.value(), u"MOB-116"_s);
}

TEST_F(DemoServicePause, stoppedOperationFailsAtOnceAndChangesNothing)
{
    const QStringList before = sprint();
    std::stop_source stop;
    const TaskResult<QString> result(m_service->create(draft(), stop.get_token()));
    m_clock.advance(79ms);
    stop.request_stop();
    ASSERT_TRUE(result.isDone());
    EXPECT_THROW(result.value(), Cancelled);
    m_clock.advance(1000ms);
    EXPECT_EQ(sprint(), before);
    // No number was consumed.
    const TaskResult<QString> next(m_service->create(draft()));
    m_clock.advance(220ms);
    EXPECT_EQ(next.value(), u"MOB-115"_s);
}

TEST_F(DemoServicePause, operationStoppedBeforehandNeverBegins)
{
    std::stop_source stop;
    stop.request_stop();
    const TaskResult<QString> result(m_service->create(draft(), stop.get_token()));
    ASSERT_TRUE(result.isDone());
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(m_clock.pending(), 0);
}

TEST_F(DemoServicePause, stopAfterTheEndChangesNothing)
{
    std::stop_source stop;
    const TaskResult<QString> result(m_service->create(draft(), stop.get_token()));
    m_clock.advance(220ms);
    stop.request_stop();
    EXPECT_EQ(result.value(), u"MOB-115"_s);
    EXPECT_TRUE(sprint().contains(u"MOB-115"_s));
}

TEST_F(DemoServicePause, stoppingOneOperationLeavesTheOthers)
{
    std::stop_source stop;
    const TaskResult<QString> stopped(m_service->create(draft(), stop.get_token()));
    const TaskResult<QString> kept(m_service->create(draft()));
    stop.request_stop();
    m_clock.advance(220ms);
    EXPECT_TRUE(stopped.hasFailed());
    EXPECT_EQ(kept.value(), u"MOB-115"_s);
}

TEST_F(DemoServicePause, serviceThatGoesAwayCallsItsOperationsOff)
{
    const TaskResult<QString> created(m_service->create(draft()));
    const TaskResult<IssueList> listed(m_service->issues(IssueScope::myIssues()));
    m_service.reset();
    m_clock.advance(220ms);
    ASSERT_TRUE(created.isDone());
    ASSERT_TRUE(listed.isDone());
    EXPECT_THROW(created.value(), Cancelled);
    EXPECT_THROW(listed.value(), Cancelled);
}

TEST_F(DemoServicePause, lateAnswersOfAnEarlierServiceDoNotReachTheNext)
{
    const TaskResult<QString> created(m_service->create(draft()));
    restart();
    const QStringList before = sprint();
    EXPECT_THROW(created.value(), Cancelled);
    EXPECT_FALSE(before.contains(u"MOB-115"_s));
}
