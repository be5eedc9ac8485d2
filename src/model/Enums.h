#pragma once

#include <QObject>

/// The enumerations that records and screens share. They are in a namespace so that QML can name them
/// (`Model.PriorityLevel.High`).
namespace Model {
Q_NAMESPACE
// Several enumerations have a case `Priority` or `Backlog`, so QML gets only the scoped names.
Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")

/// The general category of a status. The order of the values is also the board's order from left to right.
enum class StatusCategory { Backlog = 0, Todo = 1, InProgress = 2, Done = 3, Cancelled = 4 };
Q_ENUM_NS(StatusCategory)

/// The urgency of a priority; a lower value is more urgent.
enum class PriorityLevel { Urgent = 0, High = 1, Medium = 2, Low = 3, None = 4 };
Q_ENUM_NS(PriorityLevel)

/// The part of a project that a scope shows; `Active` is the running sprint.
enum class ProjectView { All, Active, Backlog };
Q_ENUM_NS(ProjectView)

/// The length of a recap.
enum class ActivityRange { Week, Month };
Q_ENUM_NS(ActivityRange)

/// The family of an issue type.
enum class IssueTypeKind { Epic, Story, Bug, Task, Subtask, Other };
Q_ENUM_NS(IssueTypeKind)

/// The order of issues in a list; `Manual` keeps the order that the service returned.
enum class Ordering { Priority, Updated, Created, Key, Manual };
Q_ENUM_NS(Ordering)

/// The criterion by which a list is divided into sections.
enum class Grouping { Status, Assignee, Priority, Project, None };
Q_ENUM_NS(Grouping)

enum class LayoutMode { List, Board };
Q_ENUM_NS(LayoutMode)

/// `System` follows the setting of the desktop.
enum class AppearanceMode { System, Light, Dark };
Q_ENUM_NS(AppearanceMode)

enum class RowDensity { Comfortable, Compact };
Q_ENUM_NS(RowDensity)

enum class AccentChoice { Indigo, Blue, Purple, Pink, Orange, Green, Graphite };
Q_ENUM_NS(AccentChoice)

} // namespace Model

using Model::AccentChoice;
using Model::ActivityRange;
using Model::AppearanceMode;
using Model::Grouping;
using Model::LayoutMode;
using Model::Ordering;
using Model::PriorityLevel;
using Model::ProjectView;
using Model::RowDensity;
using Model::StatusCategory;

/// True for the categories in which no work is left: done and cancelled.
constexpr bool isClosed(StatusCategory category)
{
    return category == StatusCategory::Done || category == StatusCategory::Cancelled;
}
