#include "demo/DemoSeedHistory.h"

#include "demo/DemoSamples.h"

using namespace Qt::StringLiterals;

namespace {

using DemoSeed::RowStatus;

const JiraUser assignee{u"u-1"_s, u"Une"_s, {}, {}};
const JiraUser reporter{u"u-2"_s, u"Deux"_s, {}, {}};

/// An issue that was last changed ten days after its creation.
Issue tenDays(RowStatus status)
{
    Issue issue;
    issue.status = DemoSeed::statuses().at(qsizetype(status));
    issue.assignee = assignee;
    issue.reporter = reporter;
    issue.created = inParis(10, 1, 12);
    issue.updated = inParis(10, 11, 12);
    return issue;
}

ActivityEvent created()
{
    return {inParis(10, 1, 12), reporter, ActivityEvent::Created{}};
}

ActivityEvent moved(int day, const QString &from, const QString &to)
{
    return {inParis(10, day, 12), assignee, ActivityEvent::StatusChanged{from, to}};
}

} // namespace

TEST(DemoSeedHistory, waitingIssuesWereOnlyCreated)
{
    EXPECT_EQ(DemoSeed::history(tenDays(RowStatus::Backlog)), QList{created()});
    EXPECT_EQ(DemoSeed::history(tenDays(RowStatus::Todo)), QList{created()});
}

TEST(DemoSeedHistory, workBeganAtTheLastChange)
{
    EXPECT_EQ(DemoSeed::history(tenDays(RowStatus::InProgress)),
              (QList{created(), moved(11, u"À faire"_s, u"En cours"_s)}));
}

TEST(DemoSeedHistory, reviewFollowsWorkThatBeganAfterThreeTenths)
{
    EXPECT_EQ(DemoSeed::history(tenDays(RowStatus::InReview)),
              (QList{created(), moved(4, u"À faire"_s, u"En cours"_s),
                     moved(11, u"En cours"_s, u"En revue"_s)}));
}

TEST(DemoSeedHistory, doneFollowsWorkThatBeganAfterFourTenths)
{
    EXPECT_EQ(DemoSeed::history(tenDays(RowStatus::Done)),
              (QList{created(), moved(5, u"À faire"_s, u"En cours"_s),
                     moved(11, u"En cours"_s, u"Terminé"_s)}));
}

TEST(DemoSeedHistory, cancelledComesStraightFromTheBacklog)
{
    EXPECT_EQ(DemoSeed::history(tenDays(RowStatus::Cancelled)),
              (QList{created(), moved(11, u"Backlog"_s, u"Annulé"_s)}));
}

TEST(DemoSeedHistory, reporterMovesAnIssueThatNobodyTakes)
{
    Issue issue = tenDays(RowStatus::InProgress);
    issue.assignee = std::nullopt;
    EXPECT_EQ(DemoSeed::history(issue).last().author, reporter);
}

TEST(DemoSeedHistory, everySeededIssueHasItsLog)
{
    const DemoSeed::Seed seed = testSeed();
    EXPECT_EQ(seed.events.size(), seed.issues.size());
    for (const Issue &issue : seed.issues)
        EXPECT_EQ(seed.events.value(issue.key), DemoSeed::history(issue));
}
