#pragma once

#include <QObject>

/// The one vocabulary of what a person can ask for. Keys, menus, rows of the palette and toolbars map to these values,
/// and the store carries them out.
namespace Commands {
Q_NAMESPACE
// QML gets only the scoped names, because a picker and a command may share one.
Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")

/// What can be asked for. A command on issues takes its issues beside it; without any it means those that are chosen in
/// the main window.
enum class Command {
    NewIssue,
    /// Take the focus to the issue and show it in the inspector.
    OpenIssue,
    /// Open the issue in a window of its own.
    OpenWindow,
    /// Show the focused issue in the inspector, or close the inspector on it.
    Peek,
    /// Show or hide the inspector, whatever it shows.
    ToggleInspector,
    /// Leave the innermost thing: the selection, the inspector, the filter.
    Escape,
    MoveDown,
    MoveUp,
    /// Add the focused issue to the multi-selection, or take it out.
    ToggleCheck,
    PickStatus,
    PickPriority,
    PickAssignee,
    PickLabels,
    AssignToMe,
    CopyKeys,
    CopyBranch,
    CopyLink,
    OpenInBrowser,
    ShowList,
    ShowBoard,
    ToggleCompleted,
    TogglePalette,
    CycleAppearance,
    Reload,
    OpenSettings,
};
Q_ENUM_NS(Command)

/// The properties of an issue that a picker changes.
enum class PickerKind { Status, Priority, Assignee, Labels };
Q_ENUM_NS(PickerKind)

} // namespace Commands

using Commands::Command;
using Commands::PickerKind;
