#include "update/UpdaterFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class UpdaterScheduleTest : public UpdaterFixture
{
protected:
    /// Answers every request with the running release.
    void startUpToDate()
    {
        ReleaseInfo same = newer();
        same.version = u"1.4"_s;
        same.build = u"121"_s;
        offer(same);
        open().start();
    }
    int requests() const { return transport.feeds.count(); }
};

TEST_F(UpdaterScheduleTest, TheFirstCheckIsSixSecondsAfterTheLaunch)
{
    startUpToDate();
    clock.advance(5999ms);
    EXPECT_EQ(requests(), 0);
    clock.advance(1ms);
    EXPECT_EQ(requests(), 1);
    EXPECT_EQ(updater->state(), State(State::UpToDate{}));
}

TEST_F(UpdaterScheduleTest, TheFeedIsAskedEveryFourHours)
{
    startUpToDate();
    clock.advance(14399s);
    EXPECT_EQ(requests(), 1);
    clock.advance(1s);
    EXPECT_EQ(requests(), 2);
    clock.advance(4h);
    EXPECT_EQ(requests(), 3);
}

TEST_F(UpdaterScheduleTest, WithoutAutomaticChecksThereIsNoTimerAndNoCheckAtLaunch)
{
    preferences.setFlag(u"updates.automatic"_s, false);
    startUpToDate();
    clock.advance(24h);
    EXPECT_EQ(requests(), 0);
    EXPECT_EQ(clock.pending(), 0);
}

TEST_F(UpdaterScheduleTest, TheMenuStillChecksWithoutAutomaticChecks)
{
    preferences.setFlag(u"updates.automatic"_s, false);
    startUpToDate();
    EXPECT_EQ(check(), State(State::UpToDate{}));
    EXPECT_EQ(requests(), 1);
}

TEST_F(UpdaterScheduleTest, TurningChecksOffStopsTheTimerAtOnce)
{
    startUpToDate();
    clock.advance(6s);
    updater->setAutomaticChecks(false);
    EXPECT_EQ(clock.pending(), 0);
    clock.advance(24h);
    EXPECT_EQ(requests(), 1);
}

TEST_F(UpdaterScheduleTest, TurningChecksOffBeforeTheFirstCheckPreventsIt)
{
    startUpToDate();
    updater->setAutomaticChecks(false);
    clock.advance(1min);
    EXPECT_EQ(requests(), 0);
}

TEST_F(UpdaterScheduleTest, TurningChecksOnStartsTheTimerAnew)
{
    preferences.setFlag(u"updates.automatic"_s, false);
    startUpToDate();
    clock.advance(1h);
    updater->setAutomaticChecks(true);
    clock.advance(4h - 1s);
    EXPECT_EQ(requests(), 0);
    clock.advance(1s);
    EXPECT_EQ(requests(), 1);
}

TEST_F(UpdaterScheduleTest, AnUnchangedSwitchDoesNotRestartTheTimer)
{
    startUpToDate();
    clock.advance(3h);
    updater->setAutomaticChecks(true);
    clock.advance(1h);
    EXPECT_EQ(requests(), 2);
}

TEST_F(UpdaterScheduleTest, TheEndOfTheUpdaterEndsItsTimers)
{
    startUpToDate();
    updater.reset();
    EXPECT_EQ(clock.pending(), 0);
}

} // namespace
