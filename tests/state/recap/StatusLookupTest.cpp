#include "state/recap/StatusLookup.h"

#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A status whose group key is its folded name, because its name has no known synonym.
IssueStatus staging(const QString &id)
{
    return {id, u"Staging"_s, u"indeterminate"_s};
}

Issue issueIn(const QString &key, const IssueStatus &status)
{
    Issue issue = Sample::issue(key);
    issue.status = status;
    return issue;
}

} // namespace

TEST(StatusLookup, TheProjectsOwnStatusComesFirst)
{
    const StatusLookup statuses(
        {.projectStatuses = {{u"AAA"_s, {staging(u"1"_s)}}, {u"BBB"_s, {staging(u"2"_s)}}},
         .issues = {issueIn(u"BBB-1"_s, staging(u"3"_s))},
         .myOpenIssues = {}});
    EXPECT_EQ(statuses.named(u"STAGING"_s, u"BBB"_s).id(), u"2");
}

TEST(StatusLookup, ThenAnyProjectsStatus)
{
    const StatusLookup statuses({.projectStatuses = {{u"AAA"_s, {staging(u"1"_s)}}},
                                 .issues = {issueIn(u"BBB-1"_s, staging(u"3"_s))},
                                 .myOpenIssues = {}});
    EXPECT_EQ(statuses.named(u"Stáging"_s, u"BBB"_s).id(), u"1");
}

TEST(StatusLookup, ThenAnIssuesStatusTheListBeforeMyOpenIssues)
{
    const IssueList mine{issueIn(u"BBB-2"_s, staging(u"4"_s))};
    EXPECT_EQ(StatusLookup({.projectStatuses = {},
                            .issues = {issueIn(u"BBB-1"_s, staging(u"3"_s))},
                            .myOpenIssues = mine})
                  .named(u"Staging"_s, u"BBB"_s)
                  .id(),
              u"3");
    EXPECT_EQ(StatusLookup({.projectStatuses = {}, .issues = {}, .myOpenIssues = mine})
                  .named(u"Staging"_s, u"BBB"_s)
                  .id(),
              u"4");
}

TEST(StatusLookup, ANameThatNoProjectKnowsGivesAGuessedStatus)
{
    const IssueStatus status = StatusLookup().named(u"Staging"_s, u"AAA"_s);
    EXPECT_EQ(status.id(), u"name:staging");
    EXPECT_EQ(status.name(), u"Staging");
}

TEST(StatusLookup, ASynonymIsGuessedEvenWhenTheProjectHasTheStatus)
{
    const IssueStatus known(u"7"_s, u"En cours"_s, u"indeterminate"_s);
    const StatusLookup statuses(
        {.projectStatuses = {{u"AAA"_s, {known}}}, .issues = {}, .myOpenIssues = {}});
    const IssueStatus status = statuses.named(u"En cours"_s, u"AAA"_s);
    EXPECT_EQ(status.id(), u"name:en cours");
    EXPECT_EQ(status.groupKey(), known.groupKey());
    EXPECT_EQ(status.category(), StatusCategory::InProgress);
}

TEST(StatusLookup, ACanonicalKeyIsFoundByItself)
{
    const IssueStatus known(u"7"_s, u"Terminé"_s, u"done"_s);
    const StatusLookup statuses(
        {.projectStatuses = {{u"AAA"_s, {known}}}, .issues = {}, .myOpenIssues = {}});
    EXPECT_EQ(statuses.named(u"Done"_s, u"AAA"_s).id(), u"7");
}
