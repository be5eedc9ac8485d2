#pragma once

#include "jira/JiraClient.h"
#include "platform/Preferences.h"
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
#include <memory>
#include <optional>

/// A store in a session on a simulated site with 60 issues, over real HTTP.
class SimulatedStore : public testing::Test
{
protected:
    /// Starts the session and waits for its list.
    void SetUp() override
    {
        const TaskResult<void> started(store->startDemo());
        ASSERT_TRUE(runUntil([&] { return started.isDone(); }));
        ASSERT_GE(store->issues().size(), 2);
        key = store->issues().first()->key;
    }

    /// Running operations continue without the store. They are completed here, before the clock is destroyed.
    void TearDown() override
    {
        store.reset();
        EXPECT_TRUE(runUntil([&] { return clock.pending() == 0; })) << "a request never ended";
    }

    std::shared_ptr<IssueService> newSession()
    {
        const Site &site = simulated.site();
        return std::make_shared<JiraClient>(JiraCredentials{site.address, site.email, site.token},
                                            clock, calendar,
                                            folder.filePath(QStringLiteral("attachments")));
    }

    QTemporaryDir folder;
    ManualClock clock;
    SimulatedSite simulated{SiteSeed::company(60, clock.now())};
    Preferences preferences{folder.filePath(QStringLiteral("Velmora.ini"))};
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
    /// The key of the first issue of the list.
    QString key;
};
