#pragma once

#include "model/IssueScope.h"
#include "model/Project.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The enumerations of the sidebar, for QML.
namespace SidebarEnums {
Q_NAMESPACE
QML_ELEMENT

/// A section's title; a scope of the program's own; a project; a view of the present project; a line in place of projects.
enum class RowKind { Section, Scope, Project, View, Placeholder };
Q_ENUM_NS(RowKind)

} // namespace SidebarEnums

/// What the sidebar depends on.
struct SidebarInputs
{
    QList<Project> projects;
    /// Keys of projects; a key that no project has shows nothing.
    QStringList favoriteProjects;
    IssueScope scope;
    /// How many open issues the user has.
    int myOpenIssues = 0;
    /// The last load failed.
    bool hasLoadError = false;
};

/// One line of the sidebar.
struct SidebarRow
{
    /// Tells the row from the others.
    QString key;
    SidebarEnums::RowKind kind = SidebarEnums::RowKind::Scope;
    QString text;
    /// The name of the symbol; empty where a project's badge or nothing stands.
    QString symbol;
    /// What selecting the row shows; absent for rows that cannot be selected.
    std::optional<IssueScope> scope;
    /// The project of a project's row and of the rows of its views.
    std::optional<Project> project;
    bool isFavorite = false;
    /// The row of the present scope. At most one row is; a project's row gives way to the row of its view.
    bool isSelected = false;
    /// The number at the end of the row; 0 shows none.
    int badge = 0;

    /// The text, and what the badge or the indentation says to the eye.
    QString accessibleName() const;

    bool operator==(const SidebarRow &) const = default;
};

/// The rows from top to bottom.
QList<SidebarRow> sidebarRows(const SidebarInputs &inputs);

/// The scope that sidebar rows are compared with: a recap counts without its team switch.
IssueScope sidebarTag(const IssueScope &scope);
