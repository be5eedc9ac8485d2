#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue issueOf(const QString &key, const IssueStatus &status)
{
    Issue issue = sampleIssue(key);
    issue.status = status;
    return issue;
}

/// One text per column, in the form "id=keys".
QStringList columns(const IssueDerivationInputs &inputs)
{
    IssueDerivation derivation;
    derivation.setInputs(inputs);
    QStringList columns;
    for (const auto &column : derivation.boardColumns())
        columns.append(column.id + u'=' + keysOf(column.issues).join(u','));
    return columns;
}

IssueDerivationInputs projectInputs(const QList<Issue> &issues)
{
    auto inputs = inputsOf(issues);
    inputs.scope = IssueScope::project(u"WEB"_s, ProjectView::All);
    inputs.projectStatuses = {
        {u"WEB"_s, {todo(), inProgress(), inProgress(u"En revue"_s), done()}}};
    return inputs;
}

} // namespace

TEST(BoardColumns, AProjectShowsEveryColumnOfItsWorkflowAlsoEmptyOnes)
{
    EXPECT_EQ(columns(projectInputs({issueOf(u"WEB-1"_s, inProgress())})),
              (QStringList{u"s:todo="_s, u"s:inprogress=WEB-1"_s, u"s:inreview="_s, u"s:done="_s}));
}

TEST(BoardColumns, WithEveryIssueFilteredAwayAllColumnsStandAndAListHasNoGroup)
{
    auto inputs = projectInputs({issueOf(u"WEB-1"_s, inProgress())});
    inputs.filterText = u"introuvable"_s;
    EXPECT_EQ(columns(inputs),
              (QStringList{u"s:todo="_s, u"s:inprogress="_s, u"s:inreview="_s, u"s:done="_s}));
    IssueDerivation derivation;
    derivation.setInputs(inputs);
    EXPECT_TRUE(derivation.groups().isEmpty());
}

TEST(BoardColumns, ClosedStatusesHaveNoColumnWhileCompletedIssuesAreNotShown)
{
    auto inputs = projectInputs({issueOf(u"WEB-1"_s, done()), issueOf(u"WEB-2"_s, todo())});
    inputs.showCompleted = false;
    EXPECT_EQ(columns(inputs),
              (QStringList{u"s:todo=WEB-2"_s, u"s:inprogress="_s, u"s:inreview="_s}));
}

TEST(BoardColumns, AVisibleIssueWhoseColumnWasDroppedIsOnNoColumn)
{
    auto inputs = projectInputs({issueOf(u"WEB-1"_s, IssueStatus(u"9"_s, u"Terminé"_s, u"new"_s))});
    inputs.showCompleted = false;
    EXPECT_EQ(columns(inputs), (QStringList{u"s:todo="_s, u"s:inprogress="_s, u"s:inreview="_s}));
}

TEST(BoardColumns, StatusesThatMeanTheSameShareAColumn)
{
    EXPECT_EQ(columns(inputsOf({issueOf(u"WEB-1"_s, inProgress()),
                                issueOf(u"API-1"_s, inProgress(u"In Progress"_s))})),
              QStringList{u"s:inprogress=WEB-1,API-1"_s});
}

TEST(BoardColumns, AStatusThatTheWorkflowLacksStillHasAColumn)
{
    const auto inputs = projectInputs({issueOf(u"WEB-1"_s, inProgress(u"Staging"_s))});
    EXPECT_TRUE(columns(inputs).contains(u"s:staging=WEB-1"_s));
}

TEST(BoardColumns, OutsideAProjectOnlyStatusesOfVisibleIssuesHaveColumns)
{
    auto inputs = projectInputs({issueOf(u"WEB-1"_s, todo())});
    inputs.scope = IssueScope::myIssues();
    EXPECT_EQ(columns(inputs), QStringList{u"s:todo=WEB-1"_s});
}

TEST(BoardColumns, TheGroupingPlaysNoPart)
{
    auto inputs = projectInputs({issueOf(u"WEB-1"_s, todo())});
    const auto byStatus = columns(inputs);
    inputs.grouping = Grouping::Assignee;
    EXPECT_EQ(columns(inputs), byStatus);
}

TEST(BoardColumns, TheBoardFollowsTheWorkflowFromLeftToRight)
{
    const auto inputs =
        inputsOf({issueOf(u"A-1"_s, done(u"Annulé"_s)), issueOf(u"A-2"_s, done()),
                  issueOf(u"A-3"_s, inProgress(u"En revue"_s)), issueOf(u"A-4"_s, inProgress()),
                  issueOf(u"A-5"_s, todo()), issueOf(u"A-6"_s, todo(u"Backlog"_s))});
    EXPECT_EQ(columns(inputs),
              (QStringList{u"s:backlog=A-6"_s, u"s:todo=A-5"_s, u"s:inprogress=A-4"_s,
                           u"s:inreview=A-3"_s, u"s:done=A-2"_s, u"s:cancelled=A-1"_s}));
}

TEST(BoardColumns, OfTwoWorkflowsThatRankAStatusTheOneOfTheListsOwnProjectCounts)
{
    auto inputs = inputsOf({issueOf(u"WEB-1"_s, inProgress(u"Palier"_s)),
                            issueOf(u"WEB-2"_s, inProgress(u"Staging"_s)),
                            issueOf(u"WEB-3"_s, inProgress(u"Banc"_s))});
    inputs.projectStatuses = {
        {u"API"_s, {inProgress(u"Banc"_s), inProgress(u"Palier"_s), inProgress(u"Staging"_s)}},
        {u"WEB"_s, {todo(), inProgress(u"Staging"_s), inProgress(u"Palier"_s)}}};
    inputs.scope = IssueScope::project(u"WEB"_s, ProjectView::Active);
    // The project does not have "Banc", which therefore keeps its position in the workflow of the other project.
    EXPECT_EQ(columns(inputs), (QStringList{u"s:todo="_s, u"s:banc=WEB-3"_s, u"s:staging=WEB-2"_s,
                                            u"s:palier=WEB-1"_s}));
    inputs.scope = IssueScope::myIssues();
    EXPECT_EQ(columns(inputs),
              (QStringList{u"s:banc=WEB-3"_s, u"s:palier=WEB-1"_s, u"s:staging=WEB-2"_s}));
}

TEST(BoardColumns, ARecapKeepsClosedColumns)
{
    auto inputs = inputsOf({issueOf(u"A-1"_s, done())});
    inputs.scope = IssueScope::activity({});
    inputs.showCompleted = false;
    EXPECT_EQ(columns(inputs), QStringList{u"s:done=A-1"_s});
}
