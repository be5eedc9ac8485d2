#pragma once

#include <QObject>

/// All commands of the user interface. Keys, menus, rows of the palette and toolbars map to these values, and the store
/// carries them out.
namespace Commands {
Q_NAMESPACE
// QML sees only the scoped names, because a picker and a command may have the same name.
Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")

/// The commands. The issues that a command applies to are passed separately; if none are passed, it applies to those
/// that are chosen in the main window.
enum class Command {
    NewIssue,
    /// Focus the issue and show it in the inspector.
    OpenIssue,
    /// Open the issue in a window of its own.
    OpenWindow,
    /// Show the focused issue in the inspector, or close the inspector if it shows this issue.
    Peek,
    /// Show or hide the inspector, whatever it shows.
    ToggleInspector,
    /// Cancel the first of these that is present: the multi-selection, the inspector, the filter text.
    Escape,
    MoveDown,
    MoveUp,
    MovePageDown,
    MovePageUp,
    MoveToFirst,
    MoveToLast,
    /// Add all visible issues to the multi-selection.
    CheckVisible,
    /// Add the focused issue to the multi-selection, or remove it.
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
    /// Open the settings at the reference of shortcuts.
    OpenShortcuts,
    /// Look for a newer version of the program, and tell the user the result.
    CheckForUpdates,
};
Q_ENUM_NS(Command)

/// The properties of an issue that a picker changes.
enum class PickerKind { Status, Priority, Assignee, Labels };
Q_ENUM_NS(PickerKind)

} // namespace Commands

using Commands::Command;
using Commands::PickerKind;
