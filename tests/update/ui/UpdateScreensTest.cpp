#include "update/ui/UpdateScreens.h"

#include "support/ManualCalendar.h"
#include "update/UpdaterFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class UpdateScreensTest : public UpdaterFixture
{
protected:
    UpdateScreens &show()
    {
        screens.emplace(open(), calendar);
        return *screens;
    }

    ManualCalendar calendar;
    std::optional<UpdateScreens> screens;
};

TEST_F(UpdateScreensTest, TheButtonsFollowTheState)
{
    show();
    EXPECT_TRUE(screens->offersCheck());
    EXPECT_FALSE(screens->offersInstall());
    updater->checkNow();
    EXPECT_FALSE(screens->offersCheck()) << "while checking";
    transport.feeds.last().finish({.status = 200, .body = newer().encoded()});
    EXPECT_EQ(updater->state().kind(), Kind::Downloading);
    EXPECT_FALSE(screens->offersCheck()) << "while downloading";
    transport.archives.last().finish(ScriptedTransport::archive(Content));
    EXPECT_TRUE(runUntil([&] { return screens->offersInstall(); }));
    EXPECT_FALSE(screens->offersCheck()) << "when ready";
    updater->installAndRelaunch();
    EXPECT_FALSE(screens->offersInstall());
    EXPECT_FALSE(screens->offersCheck()) << "while installing";
}

TEST_F(UpdateScreensTest, TheNotesAreOneDocumentFromAvailableToReady)
{
    show();
    QSignalSpy changed(&*screens, &UpdateScreens::notesChanged);
    ReleaseInfo release = newer();
    release.notes = u"- [ ] à lire"_s;
    offer(release);
    offerArchive();
    check();
    EXPECT_EQ(updater->state().kind(), Kind::Ready);
    EXPECT_TRUE(screens->hasNotes());
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(UpdateScreensTest, AReleaseWithoutNotesHasNone)
{
    show();
    ReleaseInfo release = newer();
    release.notes = u"  \n"_s;
    offer(release);
    offerArchive();
    check();
    EXPECT_EQ(updater->state().kind(), Kind::Ready);
    EXPECT_FALSE(screens->hasNotes());
}

TEST_F(UpdateScreensTest, TheLastCheckIsEmptyUntilAFeedWasRead)
{
    show();
    EXPECT_EQ(screens->lastCheck(), QString());
    answerFeed({}, 500);
    check();
    EXPECT_EQ(screens->lastCheck(), QString());
    offer(newer());
    offerArchive();
    check();
    EXPECT_NE(screens->lastCheck(), QString());
}

TEST_F(UpdateScreensTest, ACheckFromTheMenuRaisesAnAlertWhenItEnds)
{
    show();
    QSignalSpy raised(&*screens, &UpdateScreens::alertRaised);
    screens->checkFromMenu();
    EXPECT_FALSE(screens->hasAlert());
    transport.feeds.last().finish({.status = 503, .body = {}});
    EXPECT_TRUE(runUntil([&] { return screens->hasAlert(); }));
    EXPECT_EQ(raised.count(), 1);
    EXPECT_EQ(screens->alert().title, u"Mise à jour impossible"_s);
    EXPECT_TRUE(screens->alert().isWarning);
    screens->acceptAlert();
    EXPECT_FALSE(screens->hasAlert());
    EXPECT_EQ(quits, 0);
}

TEST_F(UpdateScreensTest, TheFirstButtonOfTheReadyAlertInstallsAndTheSecondDoesNot)
{
    show();
    offer(newer());
    offerArchive();
    screens->checkFromMenu();
    EXPECT_TRUE(runUntil([&] { return screens->hasAlert(); }));
    screens->dismissAlert();
    EXPECT_EQ(quits, 0);
    EXPECT_EQ(updater->state().kind(), Kind::Ready);
    screens->checkFromMenu();
    EXPECT_TRUE(runUntil([&] { return screens->hasAlert(); }));
    screens->acceptAlert();
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(updater->state().kind(), Kind::Installing);
}

TEST_F(UpdateScreensTest, AnAnswerAfterTheScreensAreGoneChangesNothing)
{
    show();
    screens->checkFromMenu();
    screens.reset();
    transport.feeds.last().finish({.status = 503, .body = {}});
    EXPECT_TRUE(runUntil([&] { return updater->state().is(Kind::Failed); }));
}

TEST_F(UpdateScreensTest, ABadgeThatCannotBePressedDoesNothing)
{
    show();
    screens->pressBadge();
    EXPECT_EQ(transport.archives.count(), 0);
    EXPECT_EQ(quits, 0);
}

} // namespace
