#include "state/recap/ActivitySummary.h"

#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Sample;

namespace {

const StatusLookup noStatuses;

QStringList keys(const IssueList &issues)
{
    QStringList result;
    for (const SharedIssue &issue : issues)
        result.append(issue->key);
    return result;
}

} // namespace

TEST(ActivitySummary, AnIssueThatReachedDoneIsCompletedEvenIfItMovedOn)
{
    const auto summary =
        activitySummary({issue(u"A-1"_s, {statusEvent(u"En cours"_s, u"Terminé"_s),
                                          statusEvent(u"Terminé"_s, u"En cours"_s)})},
                        noStatuses);
    EXPECT_EQ(keys(summary.completed), QStringList{u"A-1"_s});
    EXPECT_TRUE(summary.progressed.isEmpty());
}

TEST(ActivitySummary, AnIssueThatMovedIsProgressed)
{
    const auto summary =
        activitySummary({issue(u"A-1"_s, {statusEvent(u"À faire"_s, u"En cours"_s)})}, noStatuses);
    EXPECT_EQ(keys(summary.progressed), QStringList{u"A-1"_s});
    EXPECT_TRUE(summary.completed.isEmpty());
}

TEST(ActivitySummary, AnIssueMovedAndBackIsProgressed)
{
    const auto summary =
        activitySummary({issue(u"A-1"_s, {statusEvent(u"À faire"_s, u"En cours"_s),
                                          statusEvent(u"En cours"_s, u"À faire"_s)})},
                        noStatuses);
    EXPECT_EQ(keys(summary.progressed), QStringList{u"A-1"_s});
}

TEST(ActivitySummary, ACancelledIssueIsProgressedAndNotCompleted)
{
    const auto summary =
        activitySummary({issue(u"A-1"_s, {statusEvent(u"En cours"_s, u"Annulé"_s)})}, noStatuses);
    EXPECT_EQ(keys(summary.progressed), QStringList{u"A-1"_s});
    EXPECT_TRUE(summary.completed.isEmpty());
}

TEST(ActivitySummary, TheProjectsStatusDecidesWhatDoneIs)
{
    const IssueStatus live(u"9"_s, u"Staging"_s, u"done"_s);
    const StatusLookup statuses(
        {.projectStatuses = {{u"A"_s, {live}}}, .issues = {}, .myOpenIssues = {}});
    const IssueList issues{issue(u"A-1"_s, {statusEvent(u"En cours"_s, u"Staging"_s)})};
    EXPECT_EQ(keys(activitySummary(issues, statuses).completed), QStringList{u"A-1"_s});
    EXPECT_TRUE(activitySummary(issues, noStatuses).completed.isEmpty());
}

TEST(ActivitySummary, AnIssueCanBeBothCreatedAndCompleted)
{
    const auto summary = activitySummary(
        {issue(u"A-1"_s, {createdEvent(), statusEvent(u"À faire"_s, u"Terminé"_s)})}, noStatuses);
    EXPECT_EQ(keys(summary.created), QStringList{u"A-1"_s});
    EXPECT_EQ(keys(summary.completed), QStringList{u"A-1"_s});
}

TEST(ActivitySummary, TwoCreationEventsCountOnce)
{
    const auto summary =
        activitySummary({issue(u"A-1"_s, {createdEvent(26), createdEvent(27)})}, noStatuses);
    EXPECT_EQ(summary.created.size(), 1);
}

TEST(ActivitySummary, AnAssignmentCountsForItsAuthorOnly)
{
    const auto summary = activitySummary(
        {issue(u"A-1"_s, {assigneeEvent(u"Léa"_s, 27, user(u"u1"_s, u"Nora"_s))})}, noStatuses);
    EXPECT_EQ(summary,
              (ActivitySummary{
                  .completed = {}, .progressed = {}, .created = {}, .contributors = {u"Nora"_s}}));
}

TEST(ActivitySummary, ContributorsAreCountedByName)
{
    const auto summary = activitySummary(
        {issue(u"A-1"_s, {createdEvent(26, user(u"u1"_s, u"Nora"_s)),
                          createdEvent(27, user(u"u2"_s, u"Nora"_s)),
                          createdEvent(28, user(u"u3"_s, u"Léa"_s)), createdEvent()})},
        noStatuses);
    EXPECT_EQ(summary.contributors, (QSet<QString>{u"Nora"_s, u"Léa"_s}));
}

TEST(ActivitySummary, KeepsTheOrderOfTheIssues)
{
    const auto summary = activitySummary(
        {issue(u"A-3"_s, {createdEvent()}), issue(u"A-1"_s, {createdEvent()})}, noStatuses);
    EXPECT_EQ(keys(summary.created), (QStringList{u"A-3"_s, u"A-1"_s}));
}
