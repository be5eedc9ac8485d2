#include "state/models/SidebarRows.h"

using namespace Qt::StringLiterals;
using SidebarEnums::RowKind;

namespace {

SidebarRow plainRow(RowKind kind, const QString &key, const QString &text)
{
    SidebarRow row;
    row.key = key;
    row.kind = kind;
    row.text = text;
    return row;
}

SidebarRow scopeRow(const QString &key, const QString &text, const QString &symbol,
                    const IssueScope &scope)
{
    auto row = plainRow(RowKind::Scope, key, text);
    row.symbol = symbol;
    row.scope = scope;
    return row;
}

QList<SidebarRow> ownRows(int myOpenIssues)
{
    auto mine = scopeRow(u"mine"_s, u"Mes tickets"_s, u"tray.full"_s, IssueScope::myIssues());
    mine.badge = myOpenIssues;
    return {mine, scopeRow(u"recent"_s, u"Récemment consultés"_s, u"clock"_s, IssueScope::recent()),
            scopeRow(u"reported"_s, u"Créés par moi"_s, u"square.and.pencil"_s,
                     IssueScope::reported())};
}

QList<SidebarRow> recapRows()
{
    const auto week = [](int offset) {
        return IssueScope::activity({ActivityRange::Week, offset, false});
    };
    return {plainRow(RowKind::Section, u"section:activity"_s, u"Activité"_s),
            scopeRow(u"week"_s, u"Cette semaine"_s, u"calendar"_s, week(0)),
            scopeRow(u"lastWeek"_s, u"Semaine dernière"_s, u"calendar.badge.clock"_s, week(-1))};
}

SidebarRow viewRow(const Project &project, ProjectView view, const QString &text,
                   const QString &symbol)
{
    auto row = scopeRow("view:"_L1 + QString::number(int(view)) + u':' + project.key, text, symbol,
                        IssueScope::project(project.key, view));
    row.kind = RowKind::View;
    row.project = project;
    return row;
}

QList<SidebarRow> viewRows(const Project &project)
{
    return {
        viewRow(project, ProjectView::All, u"Tickets"_s, u"square.stack"_s),
        viewRow(project, ProjectView::Active, u"Sprint actif"_s, u"arrow.triangle.2.circlepath"_s),
        viewRow(project, ProjectView::Backlog, u"Backlog"_s, u"archivebox"_s)};
}

bool isPresent(const Project &project, const IssueScope &scope)
{
    const auto *present = scope.asProject();
    return present && present->key == project.key;
}

QList<SidebarRow> projectRows(const Project &project, const SidebarInputs &inputs)
{
    auto row = plainRow(RowKind::Project, "project:"_L1 + project.key, project.name);
    row.scope = IssueScope::project(project.key, ProjectView::All);
    row.project = project;
    row.isFavorite = inputs.favoriteProjects.contains(project.key);
    QList<SidebarRow> rows{row};
    if (isPresent(project, inputs.scope))
        rows += viewRows(project);
    return rows;
}

enum class Favorites { Only, Without };

QList<SidebarRow> rowsOfProjects(const SidebarInputs &inputs, Favorites favorites)
{
    QList<SidebarRow> rows;
    for (const auto &project : inputs.projects) {
        if (inputs.favoriteProjects.contains(project.key) == (favorites == Favorites::Only))
            rows += projectRows(project, inputs);
    }
    return rows;
}

QList<SidebarRow> favoriteSection(const SidebarInputs &inputs)
{
    const auto rows = rowsOfProjects(inputs, Favorites::Only);
    if (rows.isEmpty())
        return {};
    return QList{plainRow(RowKind::Section, u"section:favorites"_s, u"Favoris"_s)} + rows;
}

QList<SidebarRow> projectSection(const SidebarInputs &inputs)
{
    const QList title{plainRow(RowKind::Section, u"section:projects"_s, u"Projets"_s)};
    if (!inputs.projects.isEmpty())
        return title + rowsOfProjects(inputs, Favorites::Without);
    const auto text = inputs.hasLoadError ? u"Aucun projet"_s : u"Chargement…"_s;
    return title + QList{plainRow(RowKind::Placeholder, u"placeholder"_s, text)};
}

/// Selects the last row of the scope: if several rows have the same scope, the last is the most specific.
void selectRow(QList<SidebarRow> &rows, const IssueScope &scope)
{
    const auto bears = [tag = sidebarTag(scope)](const SidebarRow &row) {
        return row.scope == tag;
    };
    const auto row = std::find_if(rows.rbegin(), rows.rend(), bears);
    if (row != rows.rend())
        row->isSelected = true;
}

} // namespace

QString SidebarRow::accessibleName() const
{
    if (kind == RowKind::View)
        return text + ", "_L1 + project->name;
    if (badge == 0)
        return text;
    return text + ", "_L1 + QString::number(badge) +
           (badge == 1 ? u" ticket ouvert"_s : u" tickets ouverts"_s);
}

IssueScope sidebarTag(const IssueScope &scope)
{
    const auto *period = scope.asActivity();
    return period ? IssueScope::activity({period->range, period->offset, false}) : scope;
}

QList<SidebarRow> sidebarRows(const SidebarInputs &inputs)
{
    auto rows = ownRows(inputs.myOpenIssues) + recapRows() + favoriteSection(inputs) +
                projectSection(inputs);
    selectRow(rows, inputs.scope);
    return rows;
}
