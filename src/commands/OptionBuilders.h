#pragma once

#include "commands/Command.h"
#include "commands/OptionItem.h"

#include <QHash>
#include <QLocale>

/// All that the rows of pickers depend on.
struct OptionInputs
{
    /// What is edited.
    QStringList keys;
    /// The issues of these keys that are known.
    IssueList targets;

    /// The list being looked at.
    IssueList issues;
    IssueList myOpenIssues;
    /// By issue key.
    QHash<QString, QList<WorkflowTransition>> transitions;
    /// By project key.
    QHash<QString, QList<IssueStatus>> projectStatuses;
    QHash<QString, QList<JiraUser>> assignables;
    /// The site's, in its order.
    QList<IssuePriority> priorities;
    /// What the filter menus offer, in their order.
    QList<JiraUser> availableAssignees;
    QStringList availableLabels;
    std::optional<JiraUser> me;
    /// Whose alphabet names are sorted by.
    QLocale locale;
};

/// The statuses on offer, one for each group key, in board order: for a single issue with known transitions just what
/// its workflow allows, and its own; otherwise those of the issues' projects; otherwise those of all known issues.
QList<IssueStatus> statusOptions(const OptionInputs &inputs);
/// The users on offer, each once: the user first, the others by name.
QList<JiraUser> assigneeOptions(const OptionInputs &inputs);
/// The site's priorities, or, while these are unknown, those of the issues, the most pressing first.
QList<IssuePriority> priorityOptions(const OptionInputs &inputs);

/// The rows of a picker. A row is selected when it says what all issues have; with no known issue none is. The first
/// nine statuses and priorities have their position as shortcut.
QList<OptionItem> options(PickerKind kind, const OptionInputs &inputs);
