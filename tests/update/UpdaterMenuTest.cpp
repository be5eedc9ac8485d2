#include "update/UpdaterFixture.h"

using namespace Qt::StringLiterals;

namespace {

class UpdaterMenuTest : public UpdaterFixture
{
protected:
    UpdaterMenuTest() { open(); }

    std::optional<UpdateAlert> alert()
    {
        const TaskResult<std::optional<UpdateAlert>> result(updater->checkFromMenu());
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return result.value();
    }
};

TEST_F(UpdaterMenuTest, OffersToInstallWhatIsReady)
{
    ReleaseInfo release = newer();
    release.notes = u"Des **listes** plus rapides"_s;
    offer(release);
    offerArchive();
    EXPECT_EQ(alert(), (UpdateAlert{.title = u"Velmora 1.5 est prêt à être installé"_s,
                                    .text = u"Des listes plus rapides"_s,
                                    .buttons = {u"Redémarrer et installer"_s, u"Plus tard"_s}}));
}

TEST_F(UpdaterMenuTest, NamesTheRunningVersionWithoutNotes)
{
    ReleaseInfo release = newer();
    release.notes = u"  \n"_s;
    offer(release);
    offerArchive();
    EXPECT_EQ(alert().value().text, u"Tu utilises la version 1.4."_s);
}

TEST_F(UpdaterMenuTest, SaysThatEverythingIsUpToDate)
{
    ReleaseInfo release = newer();
    release.build = u"121"_s;
    release.version = u"1.4"_s;
    offer(release);
    EXPECT_EQ(alert(), (UpdateAlert{.title = u"Velmora est à jour"_s,
                                    .text = u"Tu utilises la dernière version (1.4 (121))."_s,
                                    .buttons = {}}));
}

TEST_F(UpdaterMenuTest, WarnsOfAFailure)
{
    answerFeed({}, 502);
    EXPECT_EQ(alert(), (UpdateAlert{.title = u"Mise à jour impossible"_s,
                                    .text = u"Le serveur de mises à jour a répondu 502."_s,
                                    .buttons = {},
                                    .isWarning = true}));
}

TEST_F(UpdaterMenuTest, ShowsNothingWhileACheckIsRunning)
{
    const TaskResult<void> running(updater->check(Updater::Asker::Timer));
    EXPECT_EQ(alert(), std::nullopt);
}

} // namespace
