#include "derivation/IssueDerivation.h"

#include "derivation/IssueDerivationSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const IssueScope recap = IssueScope::activity({ActivityRange::Week, 0, false});

Issue issueOf(const QString &key, const IssueStatus &status)
{
    Issue issue = sampleIssue(key);
    issue.status = status;
    return issue;
}

IssueDerivation derived(const IssueDerivationInputs &inputs)
{
    IssueDerivation derivation;
    derivation.setInputs(inputs);
    return derivation;
}

QStringList visibleKeys(const IssueDerivationInputs &inputs)
{
    return keysOf(derived(inputs).visibleIssues());
}

QStringList groupIds(const IssueDerivationInputs &inputs)
{
    QStringList ids;
    for (const auto &group : derived(inputs).groups())
        ids.append(group.id);
    return ids;
}

} // namespace

TEST(VisibleIssues, AFilterTextOfSpacesFiltersNothing)
{
    auto inputs = inputsOf({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
    inputs.filterText = u"  \n\t "_s;
    EXPECT_EQ(visibleKeys(inputs).size(), 2);
}

TEST(VisibleIssues, TheTextIsLookedForInKeySummaryLabelsAndAssigneeWithoutCaseAndAccents)
{
    Issue byKey = sampleIssue(u"ETE-1"_s);
    Issue bySummary = sampleIssue(u"WEB-2"_s);
    bySummary.summary = u"Vacances d’Été"_s;
    Issue byLabel = sampleIssue(u"WEB-3"_s);
    byLabel.labels = {u"x"_s, u"tété"_s};
    Issue byAssignee = sampleIssue(u"WEB-4"_s);
    byAssignee.assignee = user(u"u"_s, u"Étève"_s);
    auto inputs = inputsOf({byKey, bySummary, byLabel, byAssignee, sampleIssue(u"WEB-5"_s)});
    inputs.filterText = u" eTé "_s;
    EXPECT_EQ(visibleKeys(inputs), (QStringList{u"ETE-1"_s, u"WEB-2"_s, u"WEB-3"_s, u"WEB-4"_s}));
}

TEST(VisibleIssues, ALigatureAndItsTwoLettersAreTheSameToTheSearch)
{
    Issue ligature = sampleIssue(u"WEB-1"_s);
    ligature.summary = u"Mettre en œuvre"_s;
    Issue letters = sampleIssue(u"WEB-2"_s);
    letters.summary = u"Mettre en oeuvre"_s;
    auto inputs = inputsOf({ligature, letters});
    for (const auto &text : {u"ŒUV"_s, u"Oeuv"_s}) {
        inputs.filterText = text;
        EXPECT_EQ(visibleKeys(inputs).size(), 2) << text.toStdString();
    }
}

TEST(VisibleIssues, ATextDoesNotReachFromOneFieldIntoTheNextNorIntoTheNextIssue)
{
    Issue first = sampleIssue(u"WEB-1"_s);
    first.summary = u"abc"_s;
    first.labels = {u"def"_s};
    first.assignee = user(u"u"_s, u"ghi"_s);
    auto inputs = inputsOf({first, sampleIssue(u"XYZ-2"_s)});
    for (const auto &text : {u"cd"_s, u"fg"_s, u"ix"_s, u"1a"_s}) {
        inputs.filterText = text;
        EXPECT_TRUE(visibleKeys(inputs).isEmpty()) << text.toStdString();
    }
}

TEST(VisibleIssues, ClosedIssuesHideOnlyWhileCompletedOnesAreNotShown)
{
    auto inputs = inputsOf({issueOf(u"WEB-1"_s, done()), issueOf(u"WEB-2"_s, todo()),
                            issueOf(u"WEB-3"_s, done(u"Annulé"_s))});
    EXPECT_EQ(visibleKeys(inputs).size(), 3);
    inputs.showCompleted = false;
    EXPECT_EQ(visibleKeys(inputs), QStringList{u"WEB-2"_s});
}

TEST(VisibleIssues, ARecapShowsClosedIssuesAndIgnoresTheOrdering)
{
    Issue older = issueOf(u"WEB-1"_s, done());
    older.activity = {{minute(5), std::nullopt, ActivityEvent::Created{}},
                      {minute(1), std::nullopt, ActivityEvent::Created{}}};
    older.updated = minute(50);
    Issue newer = issueOf(u"WEB-2"_s, todo());
    newer.updated = minute(6);
    auto inputs = inputsOf({older, newer});
    inputs.scope = recap;
    inputs.showCompleted = false;
    for (const auto ordering :
         {Ordering::Priority, Ordering::Updated, Ordering::Key, Ordering::Manual}) {
        inputs.ordering = ordering;
        EXPECT_EQ(visibleKeys(inputs), (QStringList{u"WEB-2"_s, u"WEB-1"_s}));
    }
}

TEST(VisibleIssues, ByPriorityTheMorePressingLeadsThenTheLaterUpdated)
{
    Issue low = sampleIssue(u"WEB-1"_s);
    low.priority = priority(u"Low"_s);
    Issue none = sampleIssue(u"WEB-2"_s);
    none.updated = minute(9);
    Issue urgentOld = sampleIssue(u"WEB-3"_s);
    urgentOld.priority = priority(u"Highest"_s);
    Issue urgentNew = urgentOld;
    urgentNew.key = u"WEB-4"_s;
    urgentNew.updated = minute(3);
    EXPECT_EQ(visibleKeys(inputsOf({low, none, urgentOld, urgentNew})),
              (QStringList{u"WEB-4"_s, u"WEB-3"_s, u"WEB-1"_s, u"WEB-2"_s}));
}

TEST(VisibleIssues, ByKeyNumbersCountAsNumbersWithinAProject)
{
    auto inputs =
        inputsOf({sampleIssue(u"ABC-10"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"ABC-9"_s)});
    inputs.ordering = Ordering::Key;
    EXPECT_EQ(visibleKeys(inputs), (QStringList{u"ABC-9"_s, u"ABC-10"_s, u"WEB-2"_s}));
}

TEST(VisibleIssues, ByCreationTheLatestLeads)
{
    Issue early = sampleIssue(u"WEB-1"_s);
    Issue late = sampleIssue(u"WEB-2"_s);
    late.created = minute(2);
    auto inputs = inputsOf({early, late});
    inputs.ordering = Ordering::Created;
    EXPECT_EQ(visibleKeys(inputs), (QStringList{u"WEB-2"_s, u"WEB-1"_s}));
}

TEST(VisibleIssues, EqualIssuesKeepTheServicesOrder)
{
    auto inputs =
        inputsOf({sampleIssue(u"WEB-3"_s), sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
    for (const auto ordering : {Ordering::Priority, Ordering::Updated, Ordering::Created}) {
        inputs.ordering = ordering;
        EXPECT_EQ(visibleKeys(inputs), (QStringList{u"WEB-3"_s, u"WEB-1"_s, u"WEB-2"_s}));
    }
}

TEST(VisibleIssues, ManualOrderingKeepsTheRankOfASprintAndABacklog)
{
    auto inputs =
        inputsOf({sampleIssue(u"WEB-3"_s), sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
    inputs.ordering = Ordering::Manual;
    for (const auto view : {ProjectView::Active, ProjectView::Backlog}) {
        inputs.scope = IssueScope::project(u"WEB"_s, view);
        EXPECT_EQ(visibleKeys(inputs), (QStringList{u"WEB-3"_s, u"WEB-1"_s, u"WEB-2"_s}));
    }
}

TEST(Groups, NothingVisibleGivesNoGroupWhateverTheGrouping)
{
    auto inputs = inputsOf({sampleIssue(u"WEB-1"_s)});
    inputs.filterText = u"introuvable"_s;
    for (int grouping = 0; grouping < 5; ++grouping) {
        inputs.grouping = Grouping(grouping);
        EXPECT_TRUE(derived(inputs).groups().isEmpty());
    }
}

TEST(Groups, StatusesOfTwoProjectsThatMeanTheSameAreOneGroup)
{
    const auto inputs = inputsOf(
        {issueOf(u"WEB-1"_s, inProgress(u"In Progress"_s)), issueOf(u"API-1"_s, inProgress())});
    const auto groups = derived(inputs).groups();
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groups[0].title, u"En cours"_s);
    EXPECT_EQ(groups[0].id, u"s:inprogress"_s);
    EXPECT_EQ(groups[0].kind, IssueGroupKind::status(inProgress(u"In Progress"_s)));
}

TEST(Groups, ACustomStatusIsTitledWithItsNameAndKnownByItsFoldedName)
{
    const auto groups =
        derived(inputsOf({issueOf(u"WEB-1"_s, inProgress(u" Éprouvé"_s))})).groups();
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groups[0].title, u" Éprouvé"_s);
    EXPECT_EQ(groups[0].id, u"s:eprouve"_s);
}

TEST(Groups, AListLeadsWithWorkUnderWayAndWithFurtherProgress)
{
    auto inputs =
        inputsOf({issueOf(u"A-1"_s, done(u"Annulé"_s)), issueOf(u"A-2"_s, done()),
                  issueOf(u"A-3"_s, todo(u"Backlog"_s)), issueOf(u"A-4"_s, todo()),
                  issueOf(u"A-5"_s, inProgress()), issueOf(u"A-6"_s, inProgress(u"En revue"_s))});
    EXPECT_EQ(groupIds(inputs), (QStringList{u"s:inreview"_s, u"s:inprogress"_s, u"s:todo"_s,
                                             u"s:backlog"_s, u"s:done"_s, u"s:cancelled"_s}));
    inputs.scope = recap;
    EXPECT_EQ(groupIds(inputs).first(), u"s:done"_s);
    EXPECT_EQ(groupIds(inputs).last(), u"s:cancelled"_s);
}

TEST(Groups, StatusesOfEqualProgressFollowTheWorkflowAndUnknownOnesCloseByName)
{
    auto inputs = inputsOf(
        {issueOf(u"A-1"_s, inProgress(u"Zone"_s)), issueOf(u"A-2"_s, inProgress(u"éclair"_s)),
         issueOf(u"A-3"_s, inProgress(u"Dépôt"_s)), issueOf(u"A-4"_s, inProgress(u"Fin"_s))});
    inputs.projectStatuses = {{u"A"_s, {inProgress(u"Zone"_s), inProgress(u"Dépôt"_s)}}};
    EXPECT_EQ(groupIds(inputs),
              (QStringList{u"s:zone"_s, u"s:depot"_s, u"s:eclair"_s, u"s:fin"_s}));
}

TEST(Groups, OfTwoWorkflowsThatRankAStatusTheFirstProjectByKeyCounts)
{
    auto inputs = inputsOf(
        {issueOf(u"A-1"_s, inProgress(u"Un"_s)), issueOf(u"A-2"_s, inProgress(u"Deux"_s))});
    inputs.projectStatuses = {{u"Z"_s, {inProgress(u"Deux"_s), inProgress(u"Un"_s)}},
                              {u"A"_s, {inProgress(u"Un"_s), inProgress(u"Deux"_s)}}};
    EXPECT_EQ(groupIds(inputs), (QStringList{u"s:un"_s, u"s:deux"_s}));
}

TEST(Groups, AProjectsOwnWorkflowCountsAsSoonAsItIsTheList)
{
    auto inputs = inputsOf({issueOf(u"WEB-1"_s, inProgress(u"Palier"_s)),
                            issueOf(u"WEB-2"_s, inProgress(u"Staging"_s))});
    inputs.projectStatuses = {{u"API"_s, {inProgress(u"Palier"_s), inProgress(u"Staging"_s)}},
                              {u"WEB"_s, {inProgress(u"Staging"_s), inProgress(u"Palier"_s)}}};
    auto derivation = derived(inputs);
    ASSERT_EQ(derivation.groups().first().id, u"s:palier"_s);
    ASSERT_EQ(derivation.menus().statuses.first().name(), u"Palier"_s);
    inputs.scope = IssueScope::project(u"WEB"_s, ProjectView::All);
    derivation.setInputs(inputs);
    EXPECT_EQ(derivation.groups().first().id, u"s:staging"_s);
    EXPECT_EQ(derivation.menus().statuses.first().name(), u"Staging"_s);
}

TEST(Groups, MyOwnIssuesLeadAndNobodysCloseTheList)
{
    Issue zoe = sampleIssue(u"A-1"_s);
    zoe.assignee = user(u"z"_s, u"Zoé"_s);
    Issue emile = sampleIssue(u"A-2"_s);
    emile.assignee = user(u"e"_s, u"Émile"_s);
    Issue fabien = sampleIssue(u"A-3"_s);
    fabien.assignee = user(u"f"_s, u"fabien"_s);
    auto inputs = inputsOf({sampleIssue(u"A-4"_s), zoe, fabien, emile});
    inputs.grouping = Grouping::Assignee;
    inputs.me = user(u"z"_s, u"Zoé"_s);
    EXPECT_EQ(groupIds(inputs), (QStringList{u"a:z"_s, u"a:e"_s, u"a:f"_s, u"a:"_s}));
    EXPECT_EQ(derived(inputs).groups().last().title, u"Non assigné"_s);
}

TEST(Groups, WithoutAKnownUserNoGroupIsPromotedAndTheUnassignedOneStillCloses)
{
    Issue zoe = sampleIssue(u"A-1"_s);
    zoe.assignee = user(u"z"_s, u"Zoé"_s);
    Issue emile = sampleIssue(u"A-2"_s);
    emile.assignee = user(u"e"_s, u"Émile"_s);
    auto inputs = inputsOf({sampleIssue(u"A-4"_s), zoe, emile});
    inputs.grouping = Grouping::Assignee;
    EXPECT_EQ(groupIds(inputs), (QStringList{u"a:e"_s, u"a:z"_s, u"a:"_s}));
}

TEST(Groups, IssuesOfPriorityNoneAndWithoutPriorityShareOneGroup)
{
    Issue odd = sampleIssue(u"A-1"_s);
    odd.priority = priority(u"Rien"_s);
    Issue high = sampleIssue(u"A-3"_s);
    high.priority = priority(u"High"_s);
    auto inputs = inputsOf({odd, sampleIssue(u"A-2"_s), high});
    inputs.grouping = Grouping::Priority;
    const auto groups = derived(inputs).groups();
    ASSERT_EQ(groups.size(), 2);
    EXPECT_EQ(groups[0].id, u"p:1"_s);
    EXPECT_EQ(groups[0].title, u"Haute"_s);
    EXPECT_EQ(groups[1].id, u"p:4"_s);
    EXPECT_EQ(groups[1].title, u"Aucune priorité"_s);
    EXPECT_EQ(keysOf(groups[1].issues), (QStringList{u"A-1"_s, u"A-2"_s}));
}

TEST(Groups, ProjectsStandByKeyUnderTheirNameOrKey)
{
    auto inputs =
        inputsOf({sampleIssue(u"WEB-1"_s), sampleIssue(u"API-1"_s), sampleIssue(u"OPS-1"_s)});
    inputs.grouping = Grouping::Project;
    inputs.projects = {project(u"WEB"_s, u"Site"_s), project(u"API"_s, u"Alpha"_s)};
    inputs.projectDetails = {{u"API"_s, project(u"API"_s, u"Alpha en détail"_s)}};
    const auto groups = derived(inputs).groups();
    ASSERT_EQ(groups.size(), 3);
    EXPECT_EQ(groups[0].title, u"Alpha en détail"_s);
    EXPECT_EQ(groups[1].title, u"OPS"_s);
    EXPECT_EQ(groups[1].kind, IssueGroupKind::project(std::nullopt));
    EXPECT_EQ(groups[2].title, u"Site"_s);
}

TEST(Groups, UngroupedIssuesShareOneGroup)
{
    auto inputs = inputsOf({sampleIssue(u"WEB-1"_s), sampleIssue(u"API-1"_s)});
    inputs.grouping = Grouping::None;
    const auto groups = derived(inputs).groups();
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groups[0].id, u"all"_s);
    EXPECT_EQ(groups[0].title, u"Tous les tickets"_s);
    EXPECT_EQ(groups[0].issues.size(), 2);
}

TEST(FlatVisibleKeys, ACollapsedGroupIsLeftOutOfTheListButNotOfTheBoard)
{
    auto inputs = inputsOf({issueOf(u"WEB-1"_s, todo()), issueOf(u"WEB-2"_s, inProgress())});
    inputs.collapsedGroups = {u"s:todo"_s};
    EXPECT_EQ(derived(inputs).flatVisibleKeys(), QStringList{u"WEB-2"_s});
    inputs.layout = LayoutMode::Board;
    EXPECT_EQ(derived(inputs).flatVisibleKeys(), (QStringList{u"WEB-1"_s, u"WEB-2"_s}));
}

TEST(Groups, OfTwoPeopleWithOneNameTheOneOfTheFirstIssueLeadsInEveryOrdering)
{
    Issue first = sampleIssue(u"A-1"_s);
    first.assignee = user(u"x"_s, u"Noam"_s);
    first.updated = minute(1);
    Issue second = sampleIssue(u"A-2"_s);
    second.assignee = user(u"y"_s, u"Noam"_s);
    second.updated = minute(2);
    auto inputs = inputsOf({first, second});
    inputs.grouping = Grouping::Assignee;
    inputs.ordering = Ordering::Key;
    IssueDerivation derivation;
    const auto ids = [&] {
        derivation.setInputs(inputs);
        QStringList result;
        for (const auto &group : derivation.groups())
            result.append(group.id);
        return result;
    };
    EXPECT_EQ(ids(), (QStringList{u"a:x"_s, u"a:y"_s}));
    inputs.ordering = Ordering::Updated;
    EXPECT_EQ(ids(), (QStringList{u"a:y"_s, u"a:x"_s}));
    first.updated = minute(3);
    inputs.issues[0] = first;
    EXPECT_EQ(ids(), (QStringList{u"a:x"_s, u"a:y"_s}));
}

TEST(RepeatedKeys, OnlyTheFirstIssueOfAKeyIsShown)
{
    auto inputs = inputsOf({issueOf(u"A-1"_s, todo()), issueOf(u"A-2"_s, todo()),
                            issueOf(u"A-1"_s, inProgress()), issueOf(u"A-3"_s, inProgress())});
    inputs.ordering = Ordering::Key;
    const auto derivation = derived(inputs);
    EXPECT_EQ(keysOf(derivation.visibleIssues()), (QStringList{u"A-1"_s, u"A-2"_s, u"A-3"_s}));
    EXPECT_EQ(derivation.flatVisibleKeys(), (QStringList{u"A-3"_s, u"A-1"_s, u"A-2"_s}));
    EXPECT_EQ(derivation.visiblePath().indexOf(u"A-1"_s), 1);
    EXPECT_EQ(derivation.rowOf(u"A-1"_s), 0);
}
