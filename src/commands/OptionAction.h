#pragma once

#include "commands/PickerKind.h"
#include "model/IssuePriority.h"
#include "model/IssueScope.h"
#include "model/IssueStatus.h"
#include "model/JiraUser.h"

#include <QStringList>

#include <optional>
#include <variant>

/// What picking a row does, as a value: the store carries it out. `keys` are the issues it applies to.
struct OptionAction
{
    struct None
    {
        bool operator==(const None &) const = default;
    };
    struct SetStatus
    {
        IssueStatus status;
        QStringList keys;
        bool operator==(const SetStatus &) const = default;
    };
    struct SetPriority
    {
        IssuePriority priority;
        QStringList keys;
        bool operator==(const SetPriority &) const = default;
    };
    /// Nobody unassigns.
    struct Assign
    {
        std::optional<JiraUser> user;
        QStringList keys;
        bool operator==(const Assign &) const = default;
    };
    struct ToggleLabel
    {
        QString label;
        QStringList keys;
        bool operator==(const ToggleLabel &) const = default;
    };
    /// Adds the label, behind their own, to the issues that have it not.
    struct AddLabel
    {
        QString label;
        QStringList keys;
        bool operator==(const AddLabel &) const = default;
    };
    /// Does nothing while the account is unknown.
    struct AssignToMe
    {
        QStringList keys;
        bool operator==(const AssignToMe &) const = default;
    };
    /// Takes the palette to a picker.
    struct ShowPicker
    {
        PickerKind kind;
        QStringList keys;
        bool operator==(const ShowPicker &) const = default;
    };
    /// Opens the create screen.
    struct NewIssue
    {
        bool operator==(const NewIssue &) const = default;
    };
    struct CopyKeys
    {
        QStringList keys;
        bool operator==(const CopyKeys &) const = default;
    };
    struct CopyBranch
    {
        QString key;
        bool operator==(const CopyBranch &) const = default;
    };
    struct CopyLink
    {
        QString key;
        bool operator==(const CopyLink &) const = default;
    };
    struct OpenInBrowser
    {
        QString key;
        bool operator==(const OpenInBrowser &) const = default;
    };
    /// Opens the issue in a window of its own.
    struct OpenWindow
    {
        QString key;
        bool operator==(const OpenWindow &) const = default;
    };
    /// Takes the focus to the issue and shows it in the inspector.
    struct OpenIssue
    {
        QString key;
        bool operator==(const OpenIssue &) const = default;
    };
    struct SetLayout
    {
        LayoutMode layout;
        bool operator==(const SetLayout &) const = default;
    };
    struct ToggleCompleted
    {
        bool operator==(const ToggleCompleted &) const = default;
    };
    struct CycleAppearance
    {
        bool operator==(const CycleAppearance &) const = default;
    };
    struct Reload
    {
        bool operator==(const Reload &) const = default;
    };
    struct OpenSettings
    {
        bool operator==(const OpenSettings &) const = default;
    };
    struct Select
    {
        IssueScope scope;
        bool operator==(const Select &) const = default;
    };

    std::variant<None, SetStatus, SetPriority, Assign, ToggleLabel, AddLabel, AssignToMe,
                 ShowPicker, NewIssue, CopyKeys, CopyBranch, CopyLink, OpenInBrowser, OpenWindow,
                 OpenIssue, SetLayout, ToggleCompleted, CycleAppearance, Reload, OpenSettings,
                 Select>
        value;

    bool operator==(const OptionAction &) const = default;
};
