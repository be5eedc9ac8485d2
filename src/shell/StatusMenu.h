#pragma once

#include "state/AppStore.h"

/// One line of the status item's menu.
struct StatusMenuEntry
{
    enum class Kind { Heading, Issue, NoIssue, Divider, NewIssue, Refresh, ShowMain, Quit };

    Kind kind;
    /// Empty for a divider.
    QString text;
    /// Set only for issues.
    QString issueKey;
    IssueStatus status;

    bool operator==(const StatusMenuEntry &) const = default;
};

/// The menu from top to bottom: during a session the first twelve open issues of the user, and in every phase the
/// entries that show the main window and quit the program.
QList<StatusMenuEntry> statusMenu(AppStore::Phase phase, const IssueList &openIssues);
