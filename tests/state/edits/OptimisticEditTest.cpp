#include "state/edits/OptimisticEdit.h"

#include "richtext/ADFNodes.h"
#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const IssueStatus inProgress(u"3"_s, u"En cours"_s, u"indeterminate"_s);
const IssueStatus done(u"5"_s, u"Terminé"_s, u"done"_s);
const IssuePriority high(u"2"_s, u"High"_s);
const IssuePriority low(u"4"_s, u"Low"_s);
const JiraUser nora = Sample::user(u"u1"_s, u"Nora Valmy"_s);
const JiraUser lea = Sample::user(u"u2"_s, u"Léa"_s);

Issue sample(const QString &key = u"A-1"_s)
{
    Issue issue = Sample::issue(key);
    issue.status = inProgress;
    issue.updated = Sample::october(20);
    issue.priority = high;
    issue.assignee = nora;
    issue.labels = {u"ios"_s, u"web"_s};
    issue.dueDate = QDate(2026, 11, 3);
    issue.description = ADF::document({});
    return issue;
}

/// One edit of every field of the sample.
QList<OptimisticEdit> allEdits()
{
    const Issue issue = sample();
    return {*statusEdit(issue, done, Sample::now()),
            *priorityEdit(issue, low),
            *assigneeEdit(issue, lea),
            *summaryEdit(issue, u"Autre"_s),
            labelsEdit(issue, {u"web"_s}),
            descriptionEdit(issue, std::nullopt),
            dueDateEdit(issue, std::nullopt)};
}

} // namespace

TEST(OptimisticEdit, AStatusDatesTheIssue)
{
    Issue issue = sample();
    statusEdit(issue, done, Sample::now())->apply(issue);
    Issue expected = sample();
    expected.status = done;
    expected.updated = Sample::now();
    EXPECT_EQ(issue, expected);
}

TEST(OptimisticEdit, EveryEditButAStatusTouchesItsFieldAlone)
{
    Issue priority = sample(), assignee = sample(), summary = sample(), labels = sample(),
          description = sample(), dueDate = sample();
    priority.priority = low;
    assignee.assignee = lea;
    summary.summary = u"Autre"_s;
    labels.labels = {u"web"_s};
    description.description.reset();
    dueDate.dueDate.reset();
    const QList<Issue> expected{priority, assignee, summary, labels, description, dueDate};
    const QList<OptimisticEdit> edits = allEdits().sliced(1);
    ASSERT_EQ(edits.size(), expected.size());
    for (qsizetype i = 0; i < edits.size(); ++i) {
        Issue issue = sample();
        edits[i].apply(issue);
        EXPECT_EQ(issue, expected[i]) << i;
    }
}

TEST(OptimisticEdit, RevertingGivesTheIssueBack)
{
    for (const OptimisticEdit &edit : allEdits()) {
        Issue issue = sample();
        edit.apply(issue);
        EXPECT_NE(issue, sample());
        edit.reversed().apply(issue);
        EXPECT_EQ(issue, sample());
    }
}

TEST(OptimisticEdit, RevertingKeepsEditsOfOtherFields)
{
    const QList<OptimisticEdit> edits = allEdits();
    for (const OptimisticEdit &edit : edits) {
        Issue issue = sample();
        for (const OptimisticEdit &each : edits)
            each.apply(issue);
        edit.reversed().apply(issue);

        Issue expected = sample();
        for (const OptimisticEdit &each : edits) {
            if (each != edit)
                each.apply(expected);
        }
        EXPECT_EQ(issue, expected);
    }
}

TEST(OptimisticEdit, AFailedFirstOfTwoEditsPutsBackTheValueBeforeIt)
{
    Issue issue = sample();
    const auto first = summaryEdit(issue, u"Deux"_s);
    first->apply(issue);
    const auto second = summaryEdit(issue, u"Trois"_s);
    second->apply(issue);
    first->reversed().apply(issue);
    EXPECT_EQ(issue.summary, sample().summary);
}

TEST(OptimisticEdit, AStatusOfTheSameGroupIsNoEdit)
{
    EXPECT_EQ(statusEdit(sample(), IssueStatus(u"77"_s, u"In Progress"_s, u"indeterminate"_s),
                         Sample::now()),
              std::nullopt);
}

TEST(OptimisticEdit, ThePresentPriorityIsNoEdit)
{
    EXPECT_EQ(priorityEdit(sample(), IssuePriority(high.id(), u"Haute"_s)), std::nullopt);
    Issue without = sample();
    without.priority.reset();
    EXPECT_TRUE(priorityEdit(without, high));
}

TEST(OptimisticEdit, ThePresentAssigneeIsNoEdit)
{
    EXPECT_EQ(assigneeEdit(sample(), Sample::user(nora.id, u"N. Valmy"_s)), std::nullopt);
}

TEST(OptimisticEdit, NobodyOnAnUnassignedIssueIsNoEdit)
{
    Issue issue = sample();
    issue.assignee.reset();
    EXPECT_EQ(assigneeEdit(issue, std::nullopt), std::nullopt);
    EXPECT_TRUE(assigneeEdit(sample(), std::nullopt));
}

TEST(OptimisticEdit, ThePresentTitleIsNoEdit)
{
    EXPECT_EQ(summaryEdit(sample(), sample().summary), std::nullopt);
}

TEST(OptimisticEdit, TellsTheServiceTheNewValue)
{
    const QList<OptimisticEdit> edits = allEdits();
    EXPECT_EQ(edits[0].fieldUpdate(), std::nullopt);
    EXPECT_EQ(edits[1].fieldUpdate(), IssueFieldUpdate{IssueFieldUpdate::Priority{low}});
    EXPECT_EQ(edits[2].fieldUpdate(), std::nullopt);
    EXPECT_EQ(edits[3].fieldUpdate(), IssueFieldUpdate{IssueFieldUpdate::Summary{u"Autre"_s}});
    EXPECT_EQ(edits[4].fieldUpdate(), IssueFieldUpdate{IssueFieldUpdate::Labels{{u"web"_s}}});
    EXPECT_EQ(edits[5].fieldUpdate(), IssueFieldUpdate{IssueFieldUpdate::Description{}});
    EXPECT_EQ(edits[6].fieldUpdate(), IssueFieldUpdate{IssueFieldUpdate::DueDate{}});
}

TEST(LabelToggle, OnTwoIssuesOfWhichOneHasTheLabelAddsItThenTakesItFromBoth)
{
    Issue with = sample(u"A-1"_s);
    Issue without = sample(u"A-2"_s);
    without.labels = {u"web"_s};

    const auto adding = labelToggleEdits({with, without}, u"ios"_s);
    ASSERT_EQ(adding.size(), 1);
    EXPECT_EQ(adding[0].key, u"A-2");
    adding[0].apply(without);
    EXPECT_EQ(without.labels, (QStringList{u"web"_s, u"ios"_s}));

    const auto removing = labelToggleEdits({with, without}, u"ios"_s);
    ASSERT_EQ(removing.size(), 2);
    removing[0].apply(with);
    removing[1].apply(without);
    EXPECT_EQ(with.labels, QStringList{u"web"_s});
    EXPECT_EQ(without.labels, QStringList{u"web"_s});
}

TEST(LabelToggle, RemovesEveryOccurrence)
{
    Issue issue = sample();
    issue.labels = {u"ios"_s, u"web"_s, u"ios"_s};
    labelToggleEdits({issue}, u"ios"_s)[0].apply(issue);
    EXPECT_EQ(issue.labels, QStringList{u"web"_s});
}

TEST(LabelToggle, OfNoIssuesIsNoEdit)
{
    EXPECT_TRUE(labelToggleEdits({}, u"ios"_s).isEmpty());
}
