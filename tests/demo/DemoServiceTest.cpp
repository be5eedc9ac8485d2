#include "demo/DemoSamples.h"

using namespace Qt::StringLiterals;

using DemoServiceTest = DemoServiceFixture;

namespace {

/// The result of an operation that does not wait.
template <typename T>
T atOnce(QCoro::Task<T> task)
{
    return TaskResult<T>(std::move(task)).value();
}

QStringList idsOf(const QList<JiraUser> &users)
{
    QStringList ids;
    for (const JiraUser &user : users)
        ids += user.id;
    return ids;
}

} // namespace

TEST_F(DemoServiceTest, siteIsNamedByItsHost)
{
    EXPECT_EQ(m_service.siteName(), u"orvantis.atlassian.net"_s);
    EXPECT_EQ(m_service.browseURL(u"MOB-101"_s),
              QUrl(u"https://orvantis.atlassian.net/browse/MOB-101"_s));
}

TEST_F(DemoServiceTest, tablesAreThoseOfTheSeed)
{
    EXPECT_EQ(atOnce(m_service.currentUser()), DemoSeed::me());
    EXPECT_EQ(atOnce(m_service.priorities()), DemoSeed::priorities());
    EXPECT_EQ(atOnce(m_service.statuses(u"NOPE"_s)), DemoSeed::statuses());
    EXPECT_EQ(atOnce(m_service.assignableUsers(u"NOPE"_s)), DemoSeed::users());
    EXPECT_EQ(settled(m_service.projects()), DemoSeed::projects());
}

TEST_F(DemoServiceTest, projectIsFoundByItsKey)
{
    EXPECT_EQ(atOnce(m_service.project(u"DS"_s)), DemoSeed::projects().at(2));
}

TEST_F(DemoServiceTest, unknownProjectFails)
{
    const TaskResult<Project> result(m_service.project(u"NOPE"_s));
    EXPECT_EQ(httpFailure([&] { result.value(); }), (JiraError::Http{404, {}}));
}

TEST_F(DemoServiceTest, openingAnIssueTwiceLeavesOneEntryInFront)
{
    settled(m_service.issue(u"DS-32"_s));
    settled(m_service.issue(u"DS-32"_s));
    EXPECT_EQ(list(IssueScope::recent()), words("DS-32 MOB-101 SUP-41 WEB-202 WEB-205 MOB-104"));
}

TEST_F(DemoServiceTest, openedIssueHasDetailsAndNoActivity)
{
    const Issue issue = settled(m_service.issue(u"WEB-201"_s));
    EXPECT_TRUE(issue.hasDetails);
    EXPECT_EQ(issue.subtasks.size(), 3);
    EXPECT_TRUE(issue.activity.isEmpty());
}

TEST_F(DemoServiceTest, openingAnUnknownIssueFailsAndIsNotRemembered)
{
    const QStringList before = list(IssueScope::recent());
    const TaskResult<Issue> result(m_service.issue(u"MOB-999"_s));
    m_clock.advance(latency);
    EXPECT_EQ(httpFailure([&] { result.value(); }),
              (JiraError::Http{404, u"Le ticket MOB-999 n'existe pas."_s}));
    EXPECT_EQ(list(IssueScope::recent()), before);
}

TEST_F(DemoServiceTest, commentsAreThoseOfTheIssue)
{
    EXPECT_EQ(atOnce(m_service.comments(u"SUP-42"_s)).size(), 3);
    EXPECT_TRUE(atOnce(m_service.comments(u"MOB-102"_s)).isEmpty());
    EXPECT_TRUE(atOnce(m_service.comments(u"NOPE-1"_s)).isEmpty());
}

TEST_F(DemoServiceTest, transitionsLeaveOutTheIssuesOwnStatus)
{
    EXPECT_EQ(atOnce(m_service.transitions(u"MOB-101"_s)).size(), 5);
    EXPECT_TRUE(atOnce(m_service.transitions(u"NOPE-1"_s)).isEmpty());
}

TEST_F(DemoServiceTest, usersAreFoundByNameWithoutAccents)
{
    EXPECT_EQ(idsOf(atOnce(m_service.searchUsers(u"talvere"_s))), words("u-me"));
    // Maud Ferrand and Odile Marchais, in the order of the table, with the customer last.
    EXPECT_EQ(idsOf(atOnce(m_service.searchUsers(u"MA"_s))), words("u-maud u-client"));
}

TEST_F(DemoServiceTest, customerCanBeMentionedButNotAssigned)
{
    EXPECT_EQ(atOnce(m_service.searchUsers(u"Odile"_s)), QList{DemoSeed::customer()});
    EXPECT_FALSE(atOnce(m_service.assignableUsers(u"SUP"_s)).contains(DemoSeed::customer()));
}

TEST_F(DemoServiceTest, usersAreNotFoundByTheirAddress)
{
    EXPECT_TRUE(atOnce(m_service.searchUsers(u"@"_s)).isEmpty());
}

TEST_F(DemoServiceTest, searchIsThatOfTheSite)
{
    EXPECT_EQ(keysOf(settled(m_service.search(u"onboarding"_s))), words("MOB-102 MOB-114"));
}

TEST_F(DemoServiceTest, downloadGivesTheLocalFile)
{
    Attachment attachment;
    attachment.contentURL = QUrl::fromLocalFile(u"/tmp/a.txt"_s);
    EXPECT_EQ(atOnce(m_service.download(attachment)), attachment.contentURL);
}

TEST_F(DemoServiceTest, downloadOfAnythingElseFails)
{
    Attachment attachment;
    EXPECT_THROW(atOnce(m_service.download(attachment)), JiraError);
    attachment.contentURL = QUrl(u"https://exemple.fr/a.txt"_s);
    try {
        atOnce(m_service.download(attachment));
        ADD_FAILURE() << "a remote file was downloaded";
    } catch (const JiraError &error) {
        EXPECT_TRUE(std::holds_alternative<JiraError::InvalidResponse>(error.value()));
    }
}

TEST_F(DemoServiceTest, aNewServiceStartsAgainFromTheSeed)
{
    settled(m_service.assign(u"MOB-105"_s, DemoSeed::me()));
    EXPECT_TRUE(list(IssueScope::myIssues()).contains(u"MOB-105"_s));
    DemoService another(m_clock, m_calendar, steadySources());
    EXPECT_FALSE(keysOf(settled(another.issues(IssueScope::myIssues()))).contains(u"MOB-105"_s));
}
