// The store on a simulated site whose search lags behind what was written, over real HTTP.
#include "jira/JiraClient.h"
#include "simulator/SimulatedSite.h"
#include "simulator/SiteSeed.h"
#include "state/AppStore.h"
#include "state/ScriptedSessions.h"
#include "support/FakeDesktop.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class LaggingSearchTest : public testing::Test
{
protected:
    void SetUp() override
    {
        simulated.site().now = [this] { return clock.now(); };
        simulated.site().searchLag = 60s;
        const TaskResult<void> started(store->startDemo());
        ASSERT_TRUE(runUntil([&] { return started.isDone(); }));
        ASSERT_GE(store->issues().size(), 2);
        key = store->issues().first()->key;
    }
    void TearDown() override
    {
        store.reset();
        EXPECT_TRUE(runUntil([&] { return clock.pending() == 0; })) << "a request never ended";
    }

    void reload()
    {
        const TaskResult<void> reloaded(store->reload());
        ASSERT_TRUE(runUntil([&] { return reloaded.isDone(); }));
    }
    void waitForWrites()
    {
        ASSERT_TRUE(runUntil([&] { return store->writes().count() == 0; }));
    }
    QString listedTitle() const
    {
        for (const SharedIssue &issue : store->issues()) {
            if (issue->key == key)
                return issue->summary;
        }
        return {};
    }

    std::shared_ptr<IssueService> newSession()
    {
        const Site &site = simulated.site();
        return std::make_shared<JiraClient>(JiraCredentials{site.address, site.email, site.token},
                                            clock, calendar, folder.filePath(u"attachments"_s));
    }

    QTemporaryDir folder;
    ManualClock clock;
    SimulatedSite simulated{SiteSeed::company(60, clock.now())};
    Preferences preferences{folder.filePath(u"Velmora.ini"_s)};
    FakeDesktop desktop;
    ScriptedSessions sessions;
    ManualCalendar calendar;
    std::optional<AppStore> store{std::in_place,
                                  AppStoreContext{.clock = clock,
                                                  .preferences = preferences,
                                                  .desktop = desktop,
                                                  .sessions = sessions,
                                                  .calendar = calendar.current(),
                                                  .makeDemo = [this] { return newSession(); }}};
    QString key;
};

TEST_F(LaggingSearchTest, AConfirmedEditStaysOnTheScreen)
{
    store->rename(key, u"Titre neuf"_s);
    waitForWrites();
    reload();
    EXPECT_EQ(listedTitle(), u"Titre neuf"_s);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(LaggingSearchTest, WhatSomebodyElseWroteComesWithASearchThatHasCaughtUp)
{
    store->rename(key, u"Titre neuf"_s);
    waitForWrites();
    desktop.isActive = false;
    clock.advance(61s);
    reload();
    ASSERT_EQ(listedTitle(), u"Titre neuf"_s);

    Site &site = simulated.site();
    site.issue(key)->summary = u"D'une autre personne"_s;
    site.issue(key)->updated = clock.now();
    clock.advance(61s);
    reload();
    EXPECT_EQ(listedTitle(), u"D'une autre personne"_s);
}

} // namespace
