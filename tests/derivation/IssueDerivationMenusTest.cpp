#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

IssueDerivationMenus menusOf(const IssueDerivationInputs &inputs)
{
    IssueDerivation derivation;
    derivation.setInputs(inputs);
    return derivation.menus();
}

QString titleOf(const IssueScope &scope, const QList<Project> &projects = {})
{
    auto inputs = inputsOf({});
    inputs.scope = scope;
    inputs.projects = projects;
    return scopeTitle(inputs, minute(0), {QLocale(u"fr_FR"_s), QTimeZone("Europe/Paris")});
}

} // namespace

TEST(FilterMenus, KeepTheirEntriesWhileFiltersHideTheIssues)
{
    Issue issue = sampleIssue(u"WEB-1"_s);
    issue.labels = {u"api"_s};
    auto inputs = inputsOf({issue});
    inputs.filterText = u"introuvable"_s;
    EXPECT_EQ(menusOf(inputs).labels, QStringList{u"api"_s});
    EXPECT_EQ(menusOf(inputs).statuses.size(), 1);
}

TEST(FilterMenus, LabelsStandByTheAlphabetWithoutRegardToCaseAndAccents)
{
    Issue issue = sampleIssue(u"WEB-1"_s);
    issue.labels = {u"zèbre"_s, u"été"_s, u"Fin"_s, u"été"_s, u"api"_s};
    EXPECT_EQ(menusOf(inputsOf({issue})).labels,
              (QStringList{u"api"_s, u"été"_s, u"Fin"_s, u"zèbre"_s}));
}

TEST(FilterMenus, AssigneesStandOnceByIdWithTheNameMetFirst)
{
    Issue first = sampleIssue(u"WEB-1"_s);
    first.assignee = user(u"u1"_s, u"Zoé"_s);
    Issue renamed = sampleIssue(u"WEB-2"_s);
    renamed.assignee = user(u"u1"_s, u"Anna"_s);
    Issue other = sampleIssue(u"WEB-3"_s);
    other.assignee = user(u"u2"_s, u"Émile"_s);
    const auto assignees =
        menusOf(inputsOf({first, renamed, other, sampleIssue(u"WEB-4"_s)})).assignees;
    EXPECT_EQ(assignees, (QList{user(u"u2"_s, u"Émile"_s), user(u"u1"_s, u"Zoé"_s)}));
}

TEST(FilterMenus, TypesStandOnceByName)
{
    Issue first = sampleIssue(u"WEB-1"_s);
    first.type = IssueType{u"t1"_s, u"Tâche"_s, false, 0};
    Issue same = sampleIssue(u"WEB-2"_s);
    same.type = IssueType{u"t2"_s, u"Tâche"_s, false, 0};
    Issue bug = sampleIssue(u"WEB-3"_s);
    bug.type = IssueType{u"t3"_s, u"Bug"_s, false, 0};
    EXPECT_EQ(menusOf(inputsOf({first, same, bug})).types,
              (QList<IssueType>{*bug.type, *first.type}));
}

TEST(FilterMenus, StatusesStandOnceByGroupInBoardOrder)
{
    Issue review = sampleIssue(u"WEB-1"_s);
    review.status = inProgress(u"En revue"_s);
    Issue doing = sampleIssue(u"WEB-2"_s);
    doing.status = inProgress();
    Issue same = sampleIssue(u"API-2"_s);
    same.status = inProgress(u"In Progress"_s);
    EXPECT_EQ(menusOf(inputsOf({review, doing, same})).statuses,
              (QList{doing.status, review.status}));
}

TEST(ScopeTitle, NamesEachScope)
{
    EXPECT_EQ(titleOf(IssueScope::myIssues()), u"Mes tickets"_s);
    EXPECT_EQ(titleOf(IssueScope::recent()), u"Récemment consultés"_s);
    EXPECT_EQ(titleOf(IssueScope::reported()), u"Créés par moi"_s);
    EXPECT_EQ(titleOf(IssueScope::activity({ActivityRange::Week, 0, false})), u"Cette semaine"_s);
    EXPECT_EQ(titleOf(IssueScope::activity({ActivityRange::Month, -1, true})),
              u"Le mois dernier · Équipe"_s);
}

TEST(ScopeTitle, NamesAProjectByItsNameOrItsKeyAndItsView)
{
    const QList projects{project(u"WEB"_s, u"Site"_s)};
    EXPECT_EQ(titleOf(IssueScope::project(u"WEB"_s, ProjectView::All), projects), u"Site"_s);
    EXPECT_EQ(titleOf(IssueScope::project(u"WEB"_s, ProjectView::Active), projects),
              u"Site · Sprint actif"_s);
    EXPECT_EQ(titleOf(IssueScope::project(u"OPS"_s, ProjectView::Backlog), projects),
              u"OPS · Backlog"_s);
}
