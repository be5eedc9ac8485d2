#pragma once

#include "commands/Command.h"
#include "commands/OptionItem.h"

#include <QHash>
#include <QLocale>

/// Everything that the rows of pickers depend on.
struct OptionInputs
{
    /// The keys of the issues that are edited.
    QStringList keys;
    /// The known issues among `keys`.
    IssueList targets;

    /// The current list.
    IssueList issues;
    IssueList myOpenIssues;
    /// By issue key.
    QHash<QString, QList<WorkflowTransition>> transitions;
    /// By project key.
    QHash<QString, QList<IssueStatus>> projectStatuses;
    QHash<QString, QList<JiraUser>> assignables;
    /// The site's priorities, in the site's order.
    QList<IssuePriority> priorities;
    /// The entries of the filter menus, in their order.
    QList<JiraUser> availableAssignees;
    QStringList availableLabels;
    std::optional<JiraUser> me;
    /// The locale by whose rules names are sorted.
    QLocale locale;
};

/// The offered statuses, one for each group key, in board order. For a single issue with known transitions: its own
/// status and those that its workflow allows. Otherwise the statuses of the issues' projects, or, if these are unknown,
/// those of all known issues.
QList<IssueStatus> statusOptions(const OptionInputs &inputs);
/// The offered assignees, each once: the current user first, the others sorted by name.
QList<JiraUser> assigneeOptions(const OptionInputs &inputs);
/// The site's priorities, or, while these are unknown, those of the issues, the highest first.
QList<IssuePriority> priorityOptions(const OptionInputs &inputs);

/// The rows of a picker. A row is selected if all issues have its value; no row is selected if no issue is known. The
/// first nine statuses and priorities have their position as shortcut.
QList<OptionItem> options(PickerKind kind, const OptionInputs &inputs);
