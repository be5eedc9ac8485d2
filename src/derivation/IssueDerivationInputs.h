#pragma once

#include "derivation/IssueFilters.h"
#include "model/IssueScope.h"
#include "model/Project.h"
#include "model/dates/UserCalendar.h"

#include <QHash>
#include <QLocale>

/// Everything that the shown lists depend on.
struct IssueDerivationInputs
{
    /// In the order in which the service returned them.
    IssueList issues;
    IssueScope scope;
    IssueFilters filters;
    QString filterText;
    Ordering ordering = Ordering::Priority;
    Grouping grouping = Grouping::Status;
    LayoutMode layout = LayoutMode::List;
    bool showCompleted = true;
    /// Ids of groups.
    QSet<QString> collapsedGroups;
    std::optional<JiraUser> me;
    QList<Project> projects;
    /// By project key. These records have more details than the entries of `projects`.
    QHash<QString, Project> projectDetails;
    /// The statuses of each loaded project in the order of its workflow, by project key.
    QHash<QString, QList<IssueStatus>> projectStatuses;
    /// The locale by whose rules names are sorted.
    QLocale locale;

    /// A recap shows closed issues regardless of the settings.
    bool isRecap() const { return scope.asActivity() != nullptr; }
    bool showsClosed() const { return showCompleted || isRecap(); }
    /// The key of the scope's project; empty if the scope is not a project.
    QString scopeProject() const;
    /// The project's details, else its entry in the list of projects; nothing if the project is unknown.
    std::optional<Project> project(const QString &key) const;
};

/// The header of a list, such as "Mes tickets" or "Velmora · Sprint actif". Only a recap's title depends on the time.
QString scopeTitle(const IssueDerivationInputs &inputs, const QDateTime &now,
                   const UserCalendar &calendar);
