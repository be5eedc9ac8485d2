#pragma once

#include "state/AppStore.h"

/// One line of the status item's menu.
struct StatusMenuEntry
{
    enum class Kind { Heading, Issue, NoIssue, Divider, NewIssue, Refresh, ShowMain, Quit };

    Kind kind;
    /// Empty for a divider.
    QString text;
    /// For issues only.
    QString issueKey;
    IssueStatus status;

    bool operator==(const StatusMenuEntry &) const = default;
};

/// Whether there is a screen to make an issue on.
enum class IssueCreation { Offered, Withheld };

/// The menu from top to bottom: in a session the first twelve of the user's open issues, in every phase the way to the
/// main window and out of the program.
QList<StatusMenuEntry> statusMenu(AppStore::Phase phase, const IssueList &openIssues,
                                  IssueCreation creation);
