#include "model/Issue.h"

#include <QTimeZone>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue withKey(const QString &key)
{
    Issue issue;
    issue.key = key;
    return issue;
}

ActivityEvent eventAt(int hour, const QString &author)
{
    return {QDateTime({2026, 10, 29}, {hour, 0}, QTimeZone::utc()),
            JiraUser{author, author, {}, {}},
            {}};
}

TEST(IssueNumber, FollowsTheLastDash)
{
    EXPECT_EQ(withKey(u"APP-142"_s).number(), 142);
    EXPECT_EQ(withKey(u"A-B-7"_s).number(), 7);
}

TEST(IssueNumber, OfAKeyWithoutDashIsReadFromTheWholeKey)
{
    EXPECT_EQ(withKey(u"APP"_s).number(), 0);
    EXPECT_EQ(withKey(u"42"_s).number(), 42);
}

TEST(IssueNumber, IsZeroWhereNothingParses)
{
    EXPECT_EQ(withKey(u"APP-"_s).number(), 0);
    EXPECT_EQ(withKey(u"APP-12b"_s).number(), 0);
    EXPECT_EQ(withKey(QString()).number(), 0);
}

TEST(IssueBranchName, HoldsTheKeyInUpperCaseAndTheSlug)
{
    Issue issue = withKey(u"APP-142"_s);
    issue.summary = u"Élargir l'accès  (bêta) !"_s;
    EXPECT_EQ(issue.branchName(), u"feature/APP-142-elargir-l-acces-beta"_s);
}

TEST(IssueBranchName, OfASummaryOfPunctuationHasNoTrailingDash)
{
    Issue issue = withKey(u"APP-1"_s);
    issue.summary = u"… !? —"_s;
    EXPECT_EQ(issue.branchName(), u"feature/APP-1"_s);
}

TEST(IssueLastActivity, IsTheLatestEvent)
{
    Issue issue;
    issue.activity = {eventAt(9, u"a"_s), eventAt(14, u"b"_s), eventAt(11, u"c"_s)};
    EXPECT_EQ(issue.lastActivity(), eventAt(14, u"b"_s));
}

TEST(IssueLastActivity, IsTheFirstOfEqualDates)
{
    Issue issue;
    issue.activity = {eventAt(9, u"a"_s), eventAt(14, u"b"_s), eventAt(14, u"c"_s)};
    EXPECT_EQ(issue.lastActivity(), eventAt(14, u"b"_s));
}

TEST(IssueLastActivity, IsAbsentWithoutEvents)
{
    EXPECT_EQ(Issue().lastActivity(), std::nullopt);
}

TEST(Issue, WithADescriptionButNotFromADetailFetchHasNoDetails)
{
    Issue issue;
    issue.description = ADFNode{u"doc"_s, {}, {}, {}, {}, 1};
    EXPECT_FALSE(issue.hasDetails);
}

TEST(Issue, WithoutPriorityCountsAsNone)
{
    Issue issue;
    EXPECT_EQ(issue.priorityLevel(), PriorityLevel::None);
    EXPECT_FALSE(issue.hasPriority());
    issue.priority = IssuePriority(u"1"_s, u"High"_s);
    EXPECT_EQ(issue.priorityLevel(), PriorityLevel::High);
    EXPECT_TRUE(issue.hasPriority());
}

TEST(Issue, AbsentPartsReadAsEmptyForTheScreens)
{
    const Issue issue;
    EXPECT_FALSE(issue.hasAssignee() || issue.hasType() || issue.hasDueDate() || issue.hasParent());
    EXPECT_EQ(issue.assigneeOrEmpty(), JiraUser());
    EXPECT_EQ(issue.typeOrEmpty(), IssueType());
    EXPECT_EQ(issue.parentSummary(), QString());
}

} // namespace
