#pragma once

#include "derivation/IssueFilters.h"
#include "model/IssueScope.h"
#include "model/Project.h"
#include "model/dates/UserCalendar.h"

#include <QHash>
#include <QLocale>

/// All that the shown lists depend on.
struct IssueDerivationInputs
{
    /// As the service gave them.
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
    /// By project key; better known than the entry of `projects`.
    QHash<QString, Project> projectDetails;
    /// The statuses of each loaded project in the order of its workflow, by project key.
    QHash<QString, QList<IssueStatus>> projectStatuses;
    /// Whose alphabet names are sorted by.
    QLocale locale;

    /// A recap shows what was finished, whatever the settings say.
    bool isRecap() const { return scope.asActivity() != nullptr; }
    bool showsClosed() const { return showCompleted || isRecap(); }
    /// The key of the project that the scope is about; empty for all other scopes.
    QString scopeProject() const;
    /// The project's details, else its entry in the list of projects.
    std::optional<Project> project(const QString &key) const;
};

/// The header of a list, such as "Mes tickets" or "Velmora · Sprint actif". Only a recap's title depends on the time.
QString scopeTitle(const IssueDerivationInputs &inputs, const QDateTime &now,
                   const UserCalendar &calendar);
