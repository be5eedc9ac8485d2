#include "demo/DemoQueries.h"

#include "demo/DemoSamples.h"

using namespace Qt::StringLiterals;

namespace {

const JiraUser someone{u"u-x"_s, u"Zoé Lœuvre"_s, {}, {}};

Issue closed(Issue issue, const QDateTime &updated)
{
    issue.status = DemoSeed::statuses().at(4);
    issue.updated = updated;
    return issue;
}

Issue mine(Issue issue)
{
    issue.assignee = DemoSeed::me();
    return issue;
}

QStringList inProject(const DemoSite &site, ProjectView view)
{
    return keysOf(DemoQueries::issues(site, IssueScope::project(u"T"_s, view), testNow(), paris()));
}

QStringList myIssues(const DemoSite &site)
{
    return keysOf(DemoQueries::issues(site, IssueScope::myIssues(), testNow(), paris()));
}

/// The recap of this week for a single issue with one event.
QStringList recapOf(const Issue &issue, const ActivityEvent &event, bool teamWide)
{
    DemoSite site = siteOf({issue});
    site.events[issue.key] = {event};
    const IssueScope scope = IssueScope::activity({ActivityRange::Week, 0, teamWide});
    return keysOf(DemoQueries::issues(site, scope, testNow(), paris()));
}

ActivityEvent statusChange(const QDateTime &date, const JiraUser &author)
{
    return {date, author, ActivityEvent::StatusChanged{u"À faire"_s, u"En cours"_s}};
}

QStringList search(const DemoSite &site, const QString &text)
{
    return keysOf(DemoQueries::search(site, text));
}

} // namespace

TEST(DemoQueries, wholeProjectDropsAnIssueClosedThirtyOneDaysAgoButTheSprintKeepsIt)
{
    DemoSite site = siteOf({closed(sampleIssue(u"T-1"_s), testNow().addDays(-31))});
    site.sprint = {u"T-1"_s};
    EXPECT_TRUE(inProject(site, ProjectView::All).isEmpty());
    EXPECT_EQ(inProject(site, ProjectView::Active), words("T-1"));
}

TEST(DemoQueries, myIssuesDropOneClosedFifteenDaysAgoButTheSprintKeepsIt)
{
    DemoSite site = siteOf({mine(closed(sampleIssue(u"T-1"_s), testNow().addDays(-15)))});
    site.sprint = {u"T-1"_s};
    EXPECT_TRUE(myIssues(site).isEmpty());
    EXPECT_EQ(inProject(site, ProjectView::All), words("T-1"));
    EXPECT_EQ(inProject(site, ProjectView::Active), words("T-1"));
}

TEST(DemoQueries, closedIssueAtExactlyTheLimitIsDropped)
{
    const auto closedAgo = [](qint64 days, qint64 ms) {
        return siteOf({mine(closed(sampleIssue(u"T-1"_s), testNow().addDays(-days).addMSecs(ms)))});
    };
    EXPECT_TRUE(myIssues(closedAgo(14, 0)).isEmpty());
    EXPECT_EQ(myIssues(closedAgo(14, 1)), words("T-1"));
    EXPECT_TRUE(inProject(closedAgo(30, 0), ProjectView::All).isEmpty());
    EXPECT_EQ(inProject(closedAgo(30, 1), ProjectView::All), words("T-1"));
}

TEST(DemoQueries, openIssuesStayHoweverOld)
{
    Issue old = mine(sampleIssue(u"T-1"_s));
    old.updated = testNow().addYears(-3);
    EXPECT_EQ(myIssues(siteOf({old})), words("T-1"));
    EXPECT_EQ(inProject(siteOf({old}), ProjectView::All), words("T-1"));
}

TEST(DemoQueries, sprintAndBacklogSortByNumberAndNotByText)
{
    DemoSite site =
        siteOf({sampleIssue(u"T-101"_s), sampleIssue(u"T-9"_s), sampleIssue(u"T-20"_s)});
    EXPECT_EQ(inProject(site, ProjectView::Backlog), words("T-9 T-20 T-101"));
    site.sprint = {u"T-101"_s, u"T-9"_s, u"T-20"_s};
    EXPECT_EQ(inProject(site, ProjectView::Active), words("T-9 T-20 T-101"));
}

TEST(DemoQueries, issuesThatChangedTogetherStandInTheOrderOfTheirKeys)
{
    const DemoSite site =
        siteOf({sampleIssue(u"T-3"_s), sampleIssue(u"T-1"_s), sampleIssue(u"T-2"_s)});
    EXPECT_EQ(inProject(site, ProjectView::All), words("T-1 T-2 T-3"));
}

TEST(DemoQueries, recentSkipsKeysWithoutAnIssue)
{
    DemoSite site = siteOf({sampleIssue(u"T-1"_s), sampleIssue(u"T-2"_s)});
    site.history = words("T-2 GONE-1 T-1");
    EXPECT_EQ(keysOf(DemoQueries::issues(site, IssueScope::recent(), testNow(), paris())),
              words("T-2 T-1"));
}

TEST(DemoQueries, myRecapKeepsMyIssueThatSomeoneElseMoved)
{
    EXPECT_EQ(recapOf(mine(sampleIssue(u"T-1"_s)), statusChange(testNow(), someone), false),
              words("T-1"));
}

TEST(DemoQueries, myRecapDropsMyIssueThatSomeoneElseOnlyReassigned)
{
    const ActivityEvent reassigned{testNow(), someone,
                                   ActivityEvent::AssigneeChanged{DemoSeed::me().name}};
    EXPECT_TRUE(recapOf(mine(sampleIssue(u"T-1"_s)), reassigned, false).isEmpty());
    EXPECT_EQ(recapOf(mine(sampleIssue(u"T-1"_s)), reassigned, true), words("T-1"));
}

TEST(DemoQueries, myRecapKeepsAnIssueThatITouched)
{
    const ActivityEvent reassigned{testNow(), DemoSeed::me(), ActivityEvent::AssigneeChanged{}};
    EXPECT_EQ(recapOf(sampleIssue(u"T-1"_s), reassigned, false), words("T-1"));
}

TEST(DemoQueries, myRecapDropsAnIssueOfOthers)
{
    const ActivityEvent moved = statusChange(testNow(), someone);
    EXPECT_TRUE(recapOf(sampleIssue(u"T-1"_s), moved, false).isEmpty());
    EXPECT_EQ(recapOf(sampleIssue(u"T-1"_s), moved, true), words("T-1"));
}

TEST(DemoQueries, eventOnThePeriodsStartIsInsideAndOnItsEndOutside)
{
    const auto onDay = [](const QDateTime &date) {
        return recapOf(sampleIssue(u"T-1"_s), statusChange(date, DemoSeed::me()), false);
    };
    EXPECT_EQ(onDay(inParis(10, 26, 0)), words("T-1"));
    EXPECT_TRUE(onDay(inParis(10, 26, 0).addMSecs(-1)).isEmpty());
    EXPECT_EQ(onDay(inParis(11, 2, 0).addMSecs(-1)), words("T-1"));
    EXPECT_TRUE(onDay(inParis(11, 2, 0)).isEmpty());
}

TEST(DemoQueries, teamRecapDropsIssuesWithoutEvents)
{
    const DemoSite site = siteOf({sampleIssue(u"T-1"_s)});
    const IssueScope scope = IssueScope::activity({ActivityRange::Week, 0, true});
    EXPECT_TRUE(DemoQueries::issues(site, scope, testNow(), paris()).isEmpty());
}

TEST(DemoQueries, searchLooksAtKeySummaryLabelsAndAssignee)
{
    Issue issue = sampleIssue(u"T-17"_s);
    issue.summary = u"Élargir la bannière"_s;
    issue.labels = words("autre accessibilité");
    issue.assignee = someone;
    const DemoSite site = siteOf({issue, sampleIssue(u"U-1"_s)});
    EXPECT_EQ(search(site, u"t-17"_s), words("T-17"));
    EXPECT_EQ(search(site, u"ELARGIR"_s), words("T-17"));
    EXPECT_EQ(search(site, u"accessibilite"_s), words("T-17"));
    EXPECT_EQ(search(site, u"zoe"_s), words("T-17"));
    EXPECT_TRUE(search(site, u"introuvable"_s).isEmpty());
}

TEST(DemoQueries, searchFindsALabelButNotAWordOfTheDescription)
{
    const DemoSite site = DemoSite::from(testSeed());
    EXPECT_EQ(search(site, u"offline"_s), words("MOB-105"));
    // "Stripe" occurs only in the description of WEB-201, "Redis" only in the comments of WEB-205.
    EXPECT_TRUE(search(site, u"Stripe"_s).isEmpty());
    EXPECT_TRUE(search(site, u"Redis"_s).isEmpty());
}

TEST(DemoQueries, searchGivesTheTwentyMatchesThatChangedLast)
{
    QList<Issue> issues;
    for (int number = 1; number <= 25; ++number) {
        Issue issue = sampleIssue(u"T-"_s + QString::number(number));
        issue.updated = testNow().addSecs(number);
        issues += issue;
    }
    QStringList expected;
    for (int number = 25; number > 5; --number)
        expected += u"T-"_s + QString::number(number);
    EXPECT_EQ(search(siteOf(issues), u"exemple"_s), expected);
}

TEST(DemoQueries, detailsHoldSubtasksByNumberAndAttachments)
{
    Issue parent = sampleIssue(u"T-1"_s);
    Issue late = sampleIssue(u"T-100"_s);
    Issue early = sampleIssue(u"T-20"_s);
    late.parent = early.parent = IssueRef{parent.id, parent.key, parent.summary, {}, {}};
    early.type = DemoSeed::issueTypes().last();
    DemoSite site = siteOf({parent, late, early});
    Attachment file;
    file.id = u"1"_s;
    site.files[parent.key] = {file};

    const Issue details = DemoQueries::details(site, parent.key);
    EXPECT_TRUE(details.hasDetails);
    EXPECT_EQ(details.attachments, QList{file});
    ASSERT_EQ(details.subtasks.size(), 2);
    EXPECT_EQ(details.subtasks[0],
              (IssueRef{early.id, early.key, early.summary, early.status, early.type}));
    EXPECT_EQ(details.subtasks[1].key, u"T-100"_s);
    EXPECT_FALSE(site.find(parent.key)->hasDetails);
}

TEST(DemoQueries, subtasksOfTheBillingPage)
{
    QStringList keys;
    for (const IssueRef &ref :
         DemoQueries::details(DemoSite::from(testSeed()), u"WEB-201"_s).subtasks)
        keys += ref.key;
    EXPECT_EQ(keys, words("WEB-202 WEB-212 WEB-213"));
}

TEST(DemoQueries, detailsOfAnUnknownKeyFail)
{
    const auto http = httpFailure([] { DemoQueries::details(DemoSite(), u"T-9"_s); });
    EXPECT_EQ(http, (JiraError::Http{404, u"Le ticket T-9 n'existe pas."_s}));
}

TEST(DemoQueries, transitionsLeadToEveryOtherStatus)
{
    const DemoSite site = siteOf({sampleIssue(u"T-1"_s)});
    const QList<WorkflowTransition> transitions = DemoQueries::transitions(site, u"T-1"_s);
    QStringList ids;
    for (const WorkflowTransition &transition : transitions) {
        ids += transition.id;
        EXPECT_EQ(transition.name, transition.to.name());
        EXPECT_EQ(transition.id, u't' + transition.to.id());
    }
    EXPECT_EQ(ids, words("t1 t3 t4 t5 t6"));
}

TEST(DemoQueries, unknownKeyHasNoTransitions)
{
    EXPECT_TRUE(DemoQueries::transitions(DemoSite(), u"T-9"_s).isEmpty());
}
