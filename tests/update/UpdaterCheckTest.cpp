#include "http/TransportError.h"
#include "update/UpdaterFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Asker = Updater::Asker;

class UpdaterCheckTest : public UpdaterFixture
{
protected:
    UpdaterCheckTest() { open(); }
    ReleaseInfo same() const
    {
        ReleaseInfo release = newer();
        release.version = u"1.4"_s;
        release.build = u"121"_s;
        return release;
    }
};

TEST_F(UpdaterCheckTest, AsksTheFeed)
{
    offer(same());
    EXPECT_EQ(check(), State(State::UpToDate{}));
    EXPECT_EQ(transport.feeds.last().argument().toString(), Feed);
}

TEST_F(UpdaterCheckTest, IsCheckingWhileTheFeedIsRead)
{
    const TaskResult<void> first(updater->check(Asker::User));
    EXPECT_EQ(updater->state(), State(State::Checking{}));
    const TaskResult<void> second(updater->check(Asker::User));
    EXPECT_TRUE(second.isDone());
    EXPECT_EQ(transport.feeds.count(), 1);
    transport.feeds.last().finish({.status = 200, .body = same().encoded()});
    EXPECT_EQ(updater->state(), State(State::UpToDate{}));
}

TEST_F(UpdaterCheckTest, WithoutAFeedTheUserIsTold)
{
    RunningApp app = runningApp();
    app.feed.clear();
    open(app);
    check();
    EXPECT_EQ(failure(), "Aucun canal de mise à jour configuré (Réglages › Mises à jour).");
}

TEST_F(UpdaterCheckTest, ATimerWithoutAFeedChangesNothing)
{
    RunningApp app = runningApp();
    app.feed.clear();
    open(app);
    EXPECT_EQ(check(Asker::Timer), State());
    EXPECT_EQ(transport.feeds.count(), 0);
}

TEST_F(UpdaterCheckTest, AStatusOutside2xxFails)
{
    for (const int status : {199, 300, 404, 500}) {
        answerFeed(same().encoded(), status);
        check();
        EXPECT_EQ(failure(),
                  "Le serveur de mises à jour a répondu " + std::to_string(status) + ".");
    }
    answerFeed(same().encoded(), 299);
    EXPECT_EQ(check(), State(State::UpToDate{}));
}

TEST_F(UpdaterCheckTest, AnAnswerWithoutAStatusIsNotRefused)
{
    transport.feeds.answerWith({.status = {}, .body = same().encoded()});
    EXPECT_EQ(check(), State(State::UpToDate{}));
}

TEST_F(UpdaterCheckTest, AFailureIsToldToTheUser)
{
    transport.feeds.failWith(TransportError(TransportError::Kind::TimedOut));
    check();
    EXPECT_EQ(failure(), "Le serveur n'a pas répondu à temps.");
    answerFeed("<html>");
    check();
    EXPECT_EQ(failure(),
              "La description de la mise à jour est illisible : ce n'est pas un objet JSON.");
}

TEST_F(UpdaterCheckTest, AFailureOfTheTimerIsSilent)
{
    transport.feeds.failWith(TransportError(TransportError::Kind::TimedOut));
    EXPECT_EQ(check(Asker::Timer), State());
    answerFeed("{}");
    EXPECT_EQ(check(Asker::Timer), State());
    answerFeed({}, 500);
    EXPECT_EQ(check(Asker::Timer), State());
}

TEST_F(UpdaterCheckTest, AFailureKeepsTheTimeOfTheLastCheck)
{
    offer(same());
    check();
    const auto before = updater->lastCheck();
    ASSERT_EQ(before, clock.now());
    clock.advance(1h);
    answerFeed({}, 500);
    check();
    EXPECT_EQ(updater->lastCheck(), before);
}

TEST_F(UpdaterCheckTest, TheTimeOfTheLastCheckIsStored)
{
    offer(same());
    check();
    const QDateTime time = clock.now();
    clock.advance(1h);
    open();
    EXPECT_EQ(updater->lastCheck(), time);
    EXPECT_EQ(updater->lastCheckOrInvalid().timeSpec(), Qt::UTC);
}

TEST_F(UpdaterCheckTest, ASystemThatIsTooOldIsToldAlsoByTheTimer)
{
    ReleaseInfo release = newer();
    release.minimumSystemVersion = u"14.3"_s;
    offer(release);
    check(Asker::Timer);
#ifdef Q_OS_MACOS
    EXPECT_EQ(failure(), "La version 1.5 nécessite macOS 14.3.");
#else
    EXPECT_EQ(failure(), "La version 1.5 nécessite le système en version 14.3.");
#endif
    EXPECT_EQ(updater->lastCheck(), clock.now());
    EXPECT_EQ(transport.archives.count(), 0);
}

TEST_F(UpdaterCheckTest, TheThirdNumberOfAMinimumIsIgnored)
{
    updater->setAutomaticDownloads(false);
    ReleaseInfo release = newer();
    release.minimumSystemVersion = u"14.2.1"_s;
    offer(release);
    EXPECT_EQ(check(Asker::Timer), State(State::Available{release}));
}

TEST_F(UpdaterCheckTest, AMinimumWithoutNumbersAlwaysPasses)
{
    updater->setAutomaticDownloads(false);
    bundles->systemMajor = 0;
    bundles->systemMinor = 0;
    for (const QString &minimum : {u"..."_s, u"abc"_s}) {
        ReleaseInfo release = newer();
        release.minimumSystemVersion = minimum;
        offer(release);
        EXPECT_EQ(check(Asker::Timer), State(State::Available{release}));
    }
}

TEST_F(UpdaterCheckTest, TheMinimumOfAnOldReleaseDoesNotMatter)
{
    ReleaseInfo release = same();
    release.minimumSystemVersion = u"99"_s;
    offer(release);
    EXPECT_EQ(check(), State(State::UpToDate{}));
}

TEST_F(UpdaterCheckTest, WithoutAutomaticDownloadsTheTimerStopsAtAvailable)
{
    updater->setAutomaticDownloads(false);
    offer(newer());
    EXPECT_EQ(check(Asker::Timer), State(State::Available{newer()}));
    EXPECT_EQ(transport.archives.count(), 0);
}

TEST_F(UpdaterCheckTest, WithAutomaticDownloadsTheTimerDownloads)
{
    offer(newer());
    offerArchive();
    EXPECT_EQ(check(Asker::Timer), State(State::Ready{newer()}));
}

TEST_F(UpdaterCheckTest, TheUsersCheckDownloadsAlways)
{
    updater->setAutomaticDownloads(false);
    offer(newer());
    offerArchive();
    EXPECT_EQ(check(), State(State::Ready{newer()}));
}

TEST_F(UpdaterCheckTest, PassesThroughEveryStateInOrder)
{
    QList<Kind> seen;
    QObject::connect(&*updater, &Updater::stateChanged, &*updater,
                     [&] { seen.append(updater->state().kind()); });
    offer(newer());
    offerArchive();
    check();
    EXPECT_EQ(seen, (QList{Kind::Checking, Kind::Available, Kind::Downloading, Kind::Ready}));
}

TEST_F(UpdaterCheckTest, NothingIsCheckedDuringADownload)
{
    offer(newer());
    const TaskResult<void> first(updater->check(Asker::User));
    ASSERT_EQ(updater->state(), State(State::Downloading{newer()}));
    const TaskResult<void> second(updater->check(Asker::User));
    EXPECT_TRUE(second.isDone());
    EXPECT_EQ(transport.feeds.count(), 1);
}

TEST_F(UpdaterCheckTest, APreparedReleaseIsNotCheckedOverByTheTimer)
{
    offer(newer());
    offerArchive();
    check();
    EXPECT_EQ(check(Asker::Timer), State(State::Ready{newer()}));
    EXPECT_EQ(transport.feeds.count(), 1);
}

TEST_F(UpdaterCheckTest, TheUserChecksAgainAlsoFromReady)
{
    offer(newer());
    offerArchive();
    check();
    EXPECT_EQ(check(), State(State::Ready{newer()}));
    EXPECT_EQ(transport.feeds.count(), 2);
    EXPECT_EQ(transport.archives.count(), 2);
}

TEST_F(UpdaterCheckTest, NothingIsCheckedDuringTheInstallation)
{
    offer(newer());
    offerArchive();
    check();
    updater->installAndRelaunch();
    ASSERT_EQ(updater->state(), State(State::Installing{}));
    EXPECT_EQ(check(), State(State::Installing{}));
    EXPECT_EQ(transport.feeds.count(), 1);
}

TEST_F(UpdaterCheckTest, AFailureStaysUntilTheNextCheck)
{
    answerFeed({}, 500);
    check();
    offer(same());
    EXPECT_EQ(check(Asker::Timer), State(State::UpToDate{}));
}

TEST_F(UpdaterCheckTest, TheUpdaterMayGoWhileTheFeedIsRead)
{
    const TaskResult<void> result(updater->check(Asker::User));
    updater.reset();
    transport.feeds.last().finish({.status = 200, .body = newer().encoded()});
    EXPECT_TRUE(result.isDone());
    EXPECT_EQ(transport.archives.count(), 0);
}

} // namespace
