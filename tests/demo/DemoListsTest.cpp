#include "demo/DemoSamples.h"

using namespace Qt::StringLiterals;

// Checks the lists of the demo on the Thursday of the test clock. The expected keys follow from the table of issues and
// the rules of each list: the issue's assignee, the days since its last change, and whether it is closed.

namespace {

IssueScope recap(ActivityRange range, int offset, bool teamWide)
{
    return IssueScope::activity({range, offset, teamWide});
}

class DemoLists : public DemoServiceFixture
{
protected:
    QStringList project(const QString &key, ProjectView view)
    {
        return list(IssueScope::project(key, view));
    }
    /// The keys of a recap, sorted, because the order of a recap is not defined.
    QStringList recapKeys(ActivityRange range, int offset, bool teamWide)
    {
        QStringList keys = list(recap(range, offset, teamWide));
        keys.sort();
        return keys;
    }
};

} // namespace

TEST_F(DemoLists, myIssuesStandByLastChange)
{
    EXPECT_EQ(list(IssueScope::myIssues()),
              words("MOB-101 WEB-202 SUP-41 MOB-112 WEB-203 MOB-103 SUP-43 MOB-113 DS-33 WEB-214 "
                    "MOB-114 WEB-215 DS-38"));
}

TEST_F(DemoLists, reportedIssuesStandByCreation)
{
    EXPECT_EQ(list(IssueScope::reported()),
              words("MOB-101 MOB-110 MOB-112 WEB-207 WEB-201 DS-33 MOB-104 MOB-114 SUP-43 MOB-106 "
                    "WEB-213 WEB-204 WEB-212 MOB-107 DS-36 WEB-214 DS-38 DS-35 WEB-206 WEB-210"));
}

TEST_F(DemoLists, recentIssuesStandAsOpened)
{
    EXPECT_EQ(list(IssueScope::recent()), words("MOB-101 SUP-41 WEB-202 WEB-205 DS-32 MOB-104"));
}

TEST_F(DemoLists, mobileProject)
{
    EXPECT_EQ(project(u"MOB"_s, ProjectView::All),
              words("MOB-101 MOB-112 MOB-102 MOB-104 MOB-106 MOB-103 MOB-110 MOB-107 MOB-113 "
                    "MOB-111 MOB-114 MOB-105 MOB-108 MOB-109"));
    EXPECT_EQ(project(u"MOB"_s, ProjectView::Active),
              words("MOB-101 MOB-102 MOB-103 MOB-104 MOB-106 MOB-107 MOB-110 MOB-112 MOB-113"));
    EXPECT_EQ(project(u"MOB"_s, ProjectView::Backlog), words("MOB-105 MOB-108 MOB-109"));
}

TEST_F(DemoLists, webProject)
{
    EXPECT_EQ(project(u"WEB"_s, ProjectView::All),
              words("WEB-202 WEB-205 WEB-201 WEB-213 WEB-203 WEB-204 WEB-212 WEB-211 WEB-207 "
                    "WEB-214 WEB-208 WEB-209 WEB-215 WEB-206 WEB-210"));
    EXPECT_EQ(project(u"WEB"_s, ProjectView::Active),
              words("WEB-201 WEB-202 WEB-203 WEB-204 WEB-205 WEB-207 WEB-208 WEB-211 WEB-212 "
                    "WEB-213 WEB-214 WEB-215"));
    EXPECT_EQ(project(u"WEB"_s, ProjectView::Backlog), words("WEB-206 WEB-209 WEB-210"));
}

TEST_F(DemoLists, designProject)
{
    EXPECT_EQ(project(u"DS"_s, ProjectView::All),
              words("DS-32 DS-31 DS-34 DS-33 DS-36 DS-38 DS-37 DS-35"));
    EXPECT_EQ(project(u"DS"_s, ProjectView::Active), words("DS-31 DS-32 DS-33 DS-34 DS-36 DS-38"));
    EXPECT_EQ(project(u"DS"_s, ProjectView::Backlog), words("DS-35 DS-37"));
}

TEST_F(DemoLists, supportProjectHasNoSprintAndAClosedIssueOnlyInTheWholeProject)
{
    EXPECT_EQ(project(u"SUP"_s, ProjectView::All), words("SUP-41 SUP-44 SUP-42 SUP-43"));
    EXPECT_TRUE(project(u"SUP"_s, ProjectView::Active).isEmpty());
    EXPECT_EQ(project(u"SUP"_s, ProjectView::Backlog), words("SUP-41 SUP-42 SUP-44"));
}

TEST_F(DemoLists, unknownProjectIsEmpty)
{
    EXPECT_TRUE(project(u"NOPE"_s, ProjectView::All).isEmpty());
}

TEST_F(DemoLists, cancelledIssueOutsideTheSprintShowsInTheWholeProjectForThirtyDays)
{
    const QString key = u"MOB-111"_s;
    EXPECT_FALSE(project(u"MOB"_s, ProjectView::Active).contains(key));
    EXPECT_FALSE(project(u"MOB"_s, ProjectView::Backlog).contains(key));
    // The issue changed 4 days before the start of the demo.
    m_clock.advance(std::chrono::days(26) - std::chrono::minutes(1));
    EXPECT_TRUE(project(u"MOB"_s, ProjectView::All).contains(key));
    m_clock.advance(std::chrono::minutes(1));
    EXPECT_FALSE(project(u"MOB"_s, ProjectView::All).contains(key));
}

TEST_F(DemoLists, recapOfThisWeek)
{
    EXPECT_EQ(recapKeys(ActivityRange::Week, 0, false),
              words("MOB-101 MOB-112 MOB-113 SUP-41 SUP-43 WEB-202"));
    EXPECT_EQ(recapKeys(ActivityRange::Week, 0, true),
              words("DS-31 DS-32 MOB-101 MOB-102 MOB-106 MOB-107 MOB-112 MOB-113 SUP-41 SUP-42 "
                    "SUP-43 WEB-201 WEB-202 WEB-205 WEB-207 WEB-212 WEB-213"));
}

TEST_F(DemoLists, recapOfLastWeek)
{
    EXPECT_EQ(recapKeys(ActivityRange::Week, -1, false),
              words("DS-33 DS-38 MOB-104 MOB-106 MOB-110 MOB-112 MOB-113 MOB-114 SUP-43 WEB-201 "
                    "WEB-202 WEB-204 WEB-207 WEB-212 WEB-213 WEB-214 WEB-215"));
    EXPECT_EQ(recapKeys(ActivityRange::Week, -1, true),
              words("DS-32 DS-33 DS-34 DS-36 DS-38 MOB-102 MOB-103 MOB-104 MOB-106 MOB-107 "
                    "MOB-110 MOB-111 MOB-112 MOB-113 MOB-114 SUP-41 SUP-42 SUP-43 SUP-44 WEB-201 "
                    "WEB-202 WEB-203 WEB-204 WEB-205 WEB-207 WEB-208 WEB-211 WEB-212 WEB-213 "
                    "WEB-214 WEB-215"));
}

TEST_F(DemoLists, recapOfThisMonthLeavesOutWhatOthersDid)
{
    EXPECT_EQ(recapKeys(ActivityRange::Month, 0, false),
              words("DS-33 DS-35 DS-36 DS-38 MOB-101 MOB-104 MOB-106 MOB-107 MOB-110 MOB-112 "
                    "MOB-113 MOB-114 SUP-41 SUP-43 WEB-201 WEB-202 WEB-204 WEB-206 WEB-207 "
                    "WEB-210 WEB-212 WEB-213 WEB-214 WEB-215"));
    EXPECT_EQ(recapKeys(ActivityRange::Month, 0, true).size(), 41);
}

TEST_F(DemoLists, recapOfLastMonthIsEmpty)
{
    EXPECT_TRUE(recapKeys(ActivityRange::Month, -1, true).isEmpty());
}

TEST_F(DemoLists, recapCarriesAllEventsOfThePeriodAndLeavesTheStoreAlone)
{
    const IssueList recapped = settled(m_service.issues(recap(ActivityRange::Week, -1, false)));
    for (const SharedIssue &issue : recapped) {
        EXPECT_FALSE(issue->activity.isEmpty());
        for (const ActivityEvent &event : issue->activity) {
            EXPECT_GE(event.date, inParis(10, 19, 0));
            EXPECT_LT(event.date, inParis(10, 26, 0));
        }
    }
    for (const SharedIssue &issue : settled(m_service.issues(IssueScope::myIssues())))
        EXPECT_TRUE(issue->activity.isEmpty());
}

TEST_F(DemoLists, listedIssuesAreWithoutDetails)
{
    settled(m_service.issue(u"MOB-101"_s));
    for (const SharedIssue &issue : settled(m_service.issues(IssueScope::myIssues())))
        EXPECT_FALSE(issue->hasDetails);
}
