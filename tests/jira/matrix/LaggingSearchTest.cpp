// The store on a simulated site whose search lags behind what was written, over real HTTP.
#include "jira/matrix/SimulatedStore.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class LaggingSearchTest : public SimulatedStore
{
protected:
    void SetUp() override
    {
        simulated.site().now = [this] { return clock.now(); };
        simulated.site().searchLag = 60s;
        SimulatedStore::SetUp();
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
