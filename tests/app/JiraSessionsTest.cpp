#include "app/JiraSessions.h"

#include "support/FakeKeychain.h"
#include "support/TaskResult.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class JiraSessionsTest : public testing::Test
{
protected:
    QTemporaryDir folder;
    Preferences preferences{folder.filePath(u"Velmora.ini"_s)};
    FakeKeychain keychain;
    JiraSessions sessions{preferences, keychain, [](const JiraCredentials &) { return nullptr; },
                          [](const JiraCredentials &) {}};
};

TEST_F(JiraSessionsTest, NothingUnderWayIsSettled)
{
    EXPECT_TRUE(TaskResult<void>(sessions.settled()).isDone());
}

TEST_F(JiraSessionsTest, ATokenThatIsBeingDeletedIsWaitedFor)
{
    const TaskResult<void> kept(
        sessions.keep({u"exemple.atlassian.net"_s, u"noam@exemple.fr"_s, u"jeton"_s}));
    ASSERT_TRUE(kept.isDone());
    keychain.removals.hold();

    const TaskResult<void> forgotten(sessions.forget());
    const TaskResult<void> settled(sessions.settled());
    EXPECT_FALSE(settled.isDone());

    keychain.removals.last().finish();
    EXPECT_TRUE(forgotten.isDone());
    EXPECT_TRUE(settled.isDone());
}

} // namespace
