#include "state/palette/PaletteNavigation.h"

using namespace Qt::StringLiterals;

namespace {

OptionItem destination(const QString &id, const QString &title, OptionIcon icon,
                       const IssueScope &scope)
{
    return {
        .id = id, .title = title, .icon = std::move(icon), .run = {OptionAction::Select{scope}}};
}

OptionItem ownList(const QString &id, const QString &title, const QString &symbol,
                   const IssueScope &scope)
{
    return destination(id, title, {OptionIcon::Symbol{symbol}}, scope);
}

QList<OptionItem> recaps(Recap::People people)
{
    const auto scope = [people](ActivityRange range, int offset) {
        return IssueScope::activity({range, offset, people == Recap::People::Team});
    };
    return {ownList(u"go-this-week"_s, u"Activité · Cette semaine"_s, u"calendar"_s,
                    scope(ActivityRange::Week, 0)),
            ownList(u"go-last-week"_s, u"Activité · Semaine dernière"_s, u"calendar.badge.clock"_s,
                    scope(ActivityRange::Week, -1)),
            ownList(u"go-this-month"_s, u"Activité · Ce mois-ci"_s, u"calendar"_s,
                    scope(ActivityRange::Month, 0)),
            ownList(u"go-last-month"_s, u"Activité · Le mois dernier"_s, u"calendar"_s,
                    scope(ActivityRange::Month, -1))};
}

void appendProject(QList<OptionItem> &items, const Project &project)
{
    OptionItem all = destination(u"go-"_s + project.key, project.name, {project},
                                 IssueScope::project(project.key, ProjectView::All));
    OptionItem sprint = ownList(all.id + u"-sprint"_s, project.name + u" · Sprint actif"_s,
                                u"arrow.triangle.2.circlepath"_s,
                                IssueScope::project(project.key, ProjectView::Active));
    all.subtitle = sprint.subtitle = project.key;
    items.append(all);
    items.append(sprint);
}

} // namespace

QList<OptionItem> paletteNavigation(const QList<Project> &projects, Recap::People people)
{
    QList<OptionItem> items{
        ownList(u"go-mine"_s, u"Mes tickets"_s, u"tray.full"_s, IssueScope::myIssues()),
        ownList(u"go-recent"_s, u"Récemment consultés"_s, u"clock"_s, IssueScope::recent()),
        ownList(u"go-reported"_s, u"Créés par moi"_s, u"square.and.pencil"_s,
                IssueScope::reported())};
    items += recaps(people);
    for (const auto &project : projects)
        appendProject(items, project);
    return items;
}
