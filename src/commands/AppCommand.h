#pragma once

#include <QObject>

namespace Commands {
Q_NAMESPACE

/// A command of the menus. Each calls one operation of the store.
enum class AppCommand {
    NewIssue,
    CommandPalette,
    Reload,
    ChangeStatus,
    ChangePriority,
    ChangeAssignee,
    AssignToMe,
    ChangeLabels,
    CopyKey,
    CopyBranch,
    CopyLink,
    OpenInBrowser,
    ShowList,
    ShowBoard,
    TogglePeek,
};
Q_ENUM_NS(AppCommand)

} // namespace Commands

using Commands::AppCommand;
