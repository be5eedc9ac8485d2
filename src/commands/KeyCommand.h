#pragma once

/// What a key of the main window asks for.
enum class KeyCommand {
    /// Take the focus to the issue and show it in the inspector.
    OpenInspector,
    /// Open the issue in a window of its own.
    OpenWindow,
    /// Show the focused issue in the inspector, or close the inspector on it.
    Peek,
    /// Leave the innermost thing: the selection, the inspector, the filter.
    Escape,
    MoveDown,
    MoveUp,
    NewIssue,
    PickStatus,
    PickPriority,
    PickAssignee,
    PickLabels,
    AssignToMe,
    ToggleCheck,
    ShowList,
    ShowBoard,
};
