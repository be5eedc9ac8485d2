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

/// A section's title; a scope without a project; a project; a view of the current project; a text in place of projects.
enum class RowKind { Section, Scope, Project, View, Placeholder };
Q_ENUM_NS(RowKind)

} // namespace SidebarEnums

/// Everything that the sidebar depends on.
struct SidebarInputs
{
    QList<Project> projects;
    /// Keys of projects. Keys of unknown projects are ignored.
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
    /// The unique key of the row.
    QString key;
    SidebarEnums::RowKind kind = SidebarEnums::RowKind::Scope;
    QString text;
    /// The name of the symbol; empty for rows with a project's badge or without a symbol.
    QString symbol;
    /// What selecting the row shows; absent for rows that cannot be selected.
    std::optional<IssueScope> scope;
    /// The project of a project's row and of the rows of its views.
    std::optional<Project> project;
    bool isFavorite = false;
    /// Whether this is the row of the current scope. At most one row is selected; the row of a view takes precedence
    /// over the row of its project.
    bool isSelected = false;
    /// The number at the end of the row; 0 shows none.
    int badge = 0;

    /// The text, and the meaning of the badge and the indentation in words.
    QString accessibleName() const;

    bool operator==(const SidebarRow &) const = default;
};

/// The rows from top to bottom.
QList<SidebarRow> sidebarRows(const SidebarInputs &inputs);

/// The scope to compare with those of the rows: a recap is compared without its switch for the team.
IssueScope sidebarTag(const IssueScope &scope);
