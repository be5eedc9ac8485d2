#include "derivation/IssueFilters.h"

#include "derivation/IssueDerivationSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue assigned(const QString &id)
{
    Issue issue = sampleIssue(u"WEB-1"_s);
    issue.assignee = user(id, id);
    return issue;
}

} // namespace

TEST(IssueFilters, WithoutConditionsEverythingPasses)
{
    EXPECT_TRUE(IssueFilters().isEmpty());
    EXPECT_TRUE(IssueFilters().matches(sampleIssue(u"WEB-1"_s)));
}

TEST(IssueFilters, AnySingleConditionMakesThemNotEmpty)
{
    EXPECT_FALSE(IssueFilters{.statuses = {u"todo"_s}}.isEmpty());
    EXPECT_FALSE(IssueFilters{.priorities = {PriorityLevel::None}}.isEmpty());
    EXPECT_FALSE(IssueFilters{.assignees = {u"u1"_s}}.isEmpty());
    EXPECT_FALSE(IssueFilters{.labels = {u"a"_s}}.isEmpty());
    EXPECT_FALSE(IssueFilters{.types = {QString()}}.isEmpty());
}

TEST(IssueFilters, UnassignedPassesIssuesOfNobodyAndTogetherWithAUserAlsoThatUsers)
{
    const IssueFilters nobody{.assignees = {IssueFilters::unassigned}};
    EXPECT_TRUE(nobody.matches(sampleIssue(u"WEB-1"_s)));
    EXPECT_FALSE(nobody.matches(assigned(u"u1"_s)));

    const IssueFilters both{.assignees = {IssueFilters::unassigned, u"u1"_s}};
    EXPECT_TRUE(both.matches(sampleIssue(u"WEB-1"_s)));
    EXPECT_TRUE(both.matches(assigned(u"u1"_s)));
    EXPECT_FALSE(both.matches(assigned(u"u2"_s)));
}

TEST(IssueFilters, AnIssueWithoutPriorityCountsAsNone)
{
    const IssueFilters none{.priorities = {PriorityLevel::None}};
    Issue high = sampleIssue(u"WEB-1"_s);
    high.priority = priority(u"High"_s);
    EXPECT_TRUE(none.matches(sampleIssue(u"WEB-2"_s)));
    EXPECT_FALSE(none.matches(high));
}

TEST(IssueFilters, OneCommonLabelIsEnough)
{
    const IssueFilters filters{.labels = {u"a"_s, u"b"_s}};
    Issue issue = sampleIssue(u"WEB-1"_s);
    EXPECT_FALSE(filters.matches(issue));
    issue.labels = {u"c"_s, u"b"_s};
    EXPECT_TRUE(filters.matches(issue));
}

TEST(IssueFilters, AnIssueWithoutTypeHasTheEmptyTypeId)
{
    Issue bug = sampleIssue(u"WEB-1"_s);
    bug.type = IssueType{u"t1"_s, u"Bug"_s, false, 0};
    EXPECT_TRUE(IssueFilters{.types = {QString()}}.matches(sampleIssue(u"WEB-2"_s)));
    EXPECT_FALSE(IssueFilters{.types = {QString()}}.matches(bug));
    EXPECT_TRUE(IssueFilters{.types = {u"t1"_s}}.matches(bug));
}

TEST(IssueFilters, StatusesAreComparedByGroupKey)
{
    const IssueFilters filters{.statuses = {u"inprogress"_s}};
    Issue issue = sampleIssue(u"WEB-1"_s);
    EXPECT_FALSE(filters.matches(issue));
    issue.status = inProgress(u"In Progress"_s);
    EXPECT_TRUE(filters.matches(issue));
}

TEST(IssueFilters, AllConditionsMustHold)
{
    const IssueFilters filters{.statuses = {u"todo"_s}, .assignees = {u"u1"_s}};
    Issue issue = assigned(u"u1"_s);
    EXPECT_TRUE(filters.matches(issue));
    issue.status = inProgress();
    EXPECT_FALSE(filters.matches(issue));
}
