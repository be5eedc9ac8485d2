#include "derivation/IssueDerivationInputs.h"

using namespace Qt::StringLiterals;

namespace {

QString viewSuffix(ProjectView view)
{
    switch (view) {
    case ProjectView::All:
        return {};
    case ProjectView::Active:
        return u" · Sprint actif"_s;
    case ProjectView::Backlog:
        return u" · Backlog"_s;
    }
    return {};
}

QString projectTitle(const IssueDerivationInputs &inputs, const IssueScope::InProject &scope)
{
    const auto project = inputs.project(scope.key);
    return (project ? project->name : scope.key) + viewSuffix(scope.view);
}

QString recapTitle(const ActivityPeriod &period, const QDateTime &now, const UserCalendar &calendar)
{
    const auto title = period.title(now, calendar);
    return period.teamWide ? title + u" · Équipe"_s : title;
}

} // namespace

QString IssueDerivationInputs::scopeProject() const
{
    const auto *project = scope.asProject();
    return project ? project->key : QString();
}

std::optional<Project> IssueDerivationInputs::project(const QString &key) const
{
    if (const auto detail = projectDetails.find(key); detail != projectDetails.end())
        return *detail;
    const auto hasKey = [&key](const Project &project) { return project.key == key; };
    const auto listed = std::find_if(projects.begin(), projects.end(), hasKey);
    return listed == projects.end() ? std::nullopt : std::optional(*listed);
}

QString scopeTitle(const IssueDerivationInputs &inputs, const QDateTime &now,
                   const UserCalendar &calendar)
{
    const auto &scope = inputs.scope;
    if (const auto *project = scope.asProject())
        return projectTitle(inputs, *project);
    if (const auto *period = scope.asActivity())
        return recapTitle(*period, now, calendar);
    if (scope == IssueScope::recent())
        return u"Récemment consultés"_s;
    return scope == IssueScope::reported() ? u"Créés par moi"_s : u"Mes tickets"_s;
}
