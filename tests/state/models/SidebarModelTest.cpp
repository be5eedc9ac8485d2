#include "state/models/SidebarModel.h"

#include "derivation/IssueDerivationSamples.h"
#include "state/models/ShadowList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

SidebarInputs twoProjects()
{
    SidebarInputs inputs;
    inputs.projects = {project(u"WEB"_s, u"Site"_s), project(u"API"_s, u"Alpha"_s)};
    return inputs;
}

QStringList texts(const SidebarInputs &inputs)
{
    QStringList texts;
    for (const auto &row : sidebarRows(inputs))
        texts.append(row.text);
    return texts;
}

QStringList selectedKeys(const SidebarInputs &inputs)
{
    QStringList keys;
    for (const auto &row : sidebarRows(inputs)) {
        if (row.isSelected)
            keys.append(row.key);
    }
    return keys;
}

const QStringList fixedTexts{u"Mes tickets"_s, u"Récemment consultés"_s, u"Créés par moi"_s,
                             u"Activité"_s,    u"Cette semaine"_s,       u"Semaine dernière"_s};

} // namespace

TEST(SidebarRows, StandInTheirOrder)
{
    EXPECT_EQ(texts(twoProjects()),
              fixedTexts + QStringList({u"Projets"_s, u"Site"_s, u"Alpha"_s}));
}

TEST(SidebarRows, EachRowHasItsSymbolAndScope)
{
    const auto rows = sidebarRows(twoProjects());
    const QStringList symbols{u"tray.full"_s, u"clock"_s,    u"square.and.pencil"_s,
                              QString(),      u"calendar"_s, u"calendar.badge.clock"_s};
    for (int row = 0; row < symbols.size(); ++row)
        EXPECT_EQ(rows[row].symbol, symbols[row]);
    EXPECT_EQ(rows[2].scope, IssueScope::reported());
    EXPECT_EQ(rows[3].scope, std::nullopt);
    EXPECT_EQ(rows[5].scope, IssueScope::activity({ActivityRange::Week, -1, false}));
    EXPECT_EQ(rows[7].scope, IssueScope::project(u"WEB"_s, ProjectView::All));
}

TEST(SidebarRows, AFavoriteStandsInItsOwnSectionAndNowhereElse)
{
    auto inputs = twoProjects();
    inputs.favoriteProjects = {u"API"_s};
    EXPECT_EQ(texts(inputs),
              fixedTexts + QStringList({u"Favoris"_s, u"Alpha"_s, u"Projets"_s, u"Site"_s}));
}

TEST(SidebarRows, BothSectionsKeepTheOrderOfTheProjects)
{
    auto inputs = twoProjects();
    inputs.favoriteProjects = {u"API"_s, u"WEB"_s};
    EXPECT_EQ(texts(inputs),
              fixedTexts + QStringList({u"Favoris"_s, u"Site"_s, u"Alpha"_s, u"Projets"_s}));
}

TEST(SidebarRows, AFavoriteThatNoProjectHasShowsNothingAndNoSection)
{
    auto inputs = twoProjects();
    inputs.favoriteProjects = {u"GONE"_s};
    EXPECT_FALSE(texts(inputs).contains(u"Favoris"_s));
    inputs.favoriteProjects = {u"GONE"_s, u"WEB"_s};
    EXPECT_TRUE(texts(inputs).contains(u"Favoris"_s));
}

TEST(SidebarRows, WithoutProjectsAPlaceholderSaysWhy)
{
    SidebarInputs inputs;
    EXPECT_EQ(texts(inputs).last(), u"Chargement…"_s);
    inputs.hasLoadError = true;
    EXPECT_EQ(texts(inputs).last(), u"Aucun projet"_s);
}

TEST(SidebarRows, ALoadErrorDoesNotHideLoadedProjects)
{
    auto inputs = twoProjects();
    const auto rows = sidebarRows(inputs);
    inputs.hasLoadError = true;
    EXPECT_EQ(sidebarRows(inputs), rows);
}

TEST(SidebarRows, ThePresentProjectShowsItsViewsInWhateverViewItIs)
{
    auto inputs = twoProjects();
    for (const auto view : {ProjectView::All, ProjectView::Active, ProjectView::Backlog}) {
        inputs.scope = IssueScope::project(u"WEB"_s, view);
        EXPECT_EQ(texts(inputs),
                  fixedTexts + QStringList({u"Projets"_s, u"Site"_s, u"Tickets"_s,
                                            u"Sprint actif"_s, u"Backlog"_s, u"Alpha"_s}));
    }
    inputs.scope = IssueScope::recent();
    EXPECT_FALSE(texts(inputs).contains(u"Tickets"_s));
}

TEST(SidebarRows, OfTheProjectAndItsTicketsOnlyTheTicketsAreSelected)
{
    auto inputs = twoProjects();
    inputs.scope = IssueScope::project(u"WEB"_s, ProjectView::All);
    EXPECT_EQ(selectedKeys(inputs), QStringList{u"view:0:WEB"_s});
    inputs.scope = IssueScope::project(u"WEB"_s, ProjectView::Backlog);
    EXPECT_EQ(selectedKeys(inputs), QStringList{u"view:2:WEB"_s});
}

TEST(SidebarRows, TheRecapStaysSelectedWhateverTheTeamSwitchSays)
{
    auto inputs = twoProjects();
    inputs.scope = IssueScope::activity({ActivityRange::Week, -1, true});
    EXPECT_EQ(selectedKeys(inputs), QStringList{u"lastWeek"_s});
}

TEST(SidebarRows, AScopeThatNoRowBearsSelectsNothingAndChangesNothing)
{
    auto inputs = twoProjects();
    auto expected = sidebarRows(inputs);
    expected[0].isSelected = false;
    inputs.scope = IssueScope::activity({ActivityRange::Month, 0, false});
    EXPECT_TRUE(selectedKeys(inputs).isEmpty());
    EXPECT_EQ(sidebarRows(inputs), expected);
}

TEST(SidebarModel, WithoutOpenIssuesMyIssuesShowNoNumber)
{
    SidebarModel model;
    auto inputs = twoProjects();
    model.setInputs(inputs);
    EXPECT_EQ(model.index(0).data(SidebarModel::BadgeTextRole), QString());
    EXPECT_EQ(model.index(0).data(SidebarModel::AccessibleNameRole), u"Mes tickets"_s);
    inputs.myOpenIssues = 12;
    model.setInputs(inputs);
    EXPECT_EQ(model.index(0).data(SidebarModel::BadgeTextRole), u"12"_s);
    EXPECT_EQ(model.index(0).data(SidebarModel::AccessibleNameRole),
              u"Mes tickets, 12 tickets ouverts"_s);
}

TEST(SidebarModel, AViewIsNamedWithItsProject)
{
    SidebarModel model;
    auto inputs = twoProjects();
    inputs.scope = IssueScope::project(u"WEB"_s, ProjectView::All);
    model.setInputs(inputs);
    EXPECT_EQ(model.index(8).data(SidebarModel::AccessibleNameRole), u"Tickets, Site"_s);
    EXPECT_EQ(model.index(8).data(SidebarModel::KindRole).value<SidebarEnums::RowKind>(),
              SidebarEnums::RowKind::View);
    EXPECT_EQ(model.index(8).data(SidebarModel::ScopeRole).value<IssueScope>(), inputs.scope);
    EXPECT_EQ(model.index(8).data(SidebarModel::IsSelectedRole), true);
}

TEST(SidebarModel, MakingAProjectAFavoriteMovesItsRow)
{
    SidebarModel model;
    auto inputs = twoProjects();
    inputs.favoriteProjects = {u"WEB"_s};
    model.setInputs(inputs);
    ShadowList shadow(model, SidebarModel::TextRole);
    const QPersistentModelIndex alpha = model.index(9);
    ASSERT_EQ(alpha.data(SidebarModel::TextRole), u"Alpha"_s);
    shadow.forget();
    inputs.favoriteProjects = {u"WEB"_s, u"API"_s};
    model.setInputs(inputs);
    EXPECT_EQ(shadow.structural, 1);
    EXPECT_EQ(alpha.row(), 8);
    EXPECT_EQ(alpha.data(SidebarModel::IsFavoriteRole), true);
}
