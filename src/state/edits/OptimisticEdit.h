#pragma once

#include "model/Issue.h"
#include "model/IssueEdits.h"

#include <optional>
#include <type_traits>
#include <variant>

/// The change of one field of an issue: its values before and after.
template <auto Field>
struct FieldEdit
{
    using Value = std::remove_cvref_t<decltype(std::declval<Issue>().*Field)>;

    Value before;
    Value after;

    void apply(Issue &issue) const { issue.*Field = after; }
    /// Applies the edit to a record from the site.
    void layOver(Issue &issue) const { apply(issue); }
    bool isShownBy(const Issue &issue) const { return issue.*Field == after; }
    void setBefore(const Issue &issue) { before = issue.*Field; }
    void setAfter(const Issue &issue) { after = issue.*Field; }
    FieldEdit reversed() const { return {after, before}; }

    bool operator==(const FieldEdit &) const = default;
};

/// A change of status. It is the only edit that also changes the date of the last update.
struct StatusEdit
{
    FieldEdit<&Issue::status> status;
    FieldEdit<&Issue::updated> updated;

    void apply(Issue &issue) const;
    /// Applies the edit to a record from the site. The record's date is kept if it is later.
    void layOver(Issue &issue) const;
    bool isShownBy(const Issue &issue) const { return status.isShownBy(issue); }
    void setBefore(const Issue &issue);
    void setAfter(const Issue &issue);
    StatusEdit reversed() const { return {status.reversed(), updated.reversed()}; }

    bool operator==(const StatusEdit &) const = default;
};

struct AttachmentAddition;

/// The removal of an attachment.
struct AttachmentRemoval
{
    Attachment attachment;

    void apply(Issue &issue) const;
    void layOver(Issue &issue) const { apply(issue); }
    bool isShownBy(const Issue &issue) const;
    void setBefore(const Issue &) {}
    void setAfter(const Issue &) {}
    AttachmentAddition reversed() const;

    bool operator==(const AttachmentRemoval &) const = default;
};

/// The addition of an attachment: a new one, or one whose removal was refused. It is appended unless it is already
/// there.
struct AttachmentAddition
{
    Attachment attachment;

    void apply(Issue &issue) const;
    void layOver(Issue &issue) const { apply(issue); }
    bool isShownBy(const Issue &issue) const;
    void setBefore(const Issue &) {}
    void setAfter(const Issue &) {}
    AttachmentRemoval reversed() const { return {attachment}; }

    bool operator==(const AttachmentAddition &) const = default;
};

/// An edit that is shown before the service has accepted it. It can be applied to every copy of the issue, and reversed
/// without changing any other field.
struct OptimisticEdit
{
    using Change = std::variant<StatusEdit, FieldEdit<&Issue::priority>,
                                FieldEdit<&Issue::assignee>, FieldEdit<&Issue::labels>,
                                FieldEdit<&Issue::summary>, FieldEdit<&Issue::description>,
                                FieldEdit<&Issue::dueDate>, AttachmentRemoval, AttachmentAddition>;

    /// The issue's key.
    QString key;
    Change change;

    void apply(Issue &issue) const;
    /// Applies the edit to a record that the site sent without it.
    void layOver(Issue &issue) const;
    /// Whether the record already has the edit's value.
    bool isShownBy(const Issue &issue) const;
    /// Replaces the edit's value before, or after, with the record's value.
    void setBefore(const Issue &issue);
    void setAfter(const Issue &issue);
    /// The edit that restores the field's previous value.
    OptimisticEdit reversed() const;
    /// Whether both change the same field of the same issue, or the same attachment.
    bool hasSameTarget(const OptimisticEdit &other) const;
    /// The update to send to the service; nothing for a status, an assignee or an attachment, which have separate
    /// operations.
    std::optional<IssueFieldUpdate> fieldUpdate() const;

    bool operator==(const OptimisticEdit &) const = default;
};

/// These functions create edits of an issue's current record. They return nothing if the edit would have no effect: the
/// same status group, the same id of the priority or assignee, the same title.

/// `now` becomes the date of the last change.
std::optional<OptimisticEdit> statusEdit(const Issue &issue, const IssueStatus &status,
                                         const QDateTime &now);
std::optional<OptimisticEdit> priorityEdit(const Issue &issue, const IssuePriority &priority);
/// An absent user unassigns the issue.
std::optional<OptimisticEdit> assigneeEdit(const Issue &issue, const std::optional<JiraUser> &user);
std::optional<OptimisticEdit> summaryEdit(const Issue &issue, const QString &title);
OptimisticEdit labelsEdit(const Issue &issue, const QStringList &labels);
OptimisticEdit descriptionEdit(const Issue &issue, const std::optional<ADFNode> &document);
OptimisticEdit dueDateEdit(const Issue &issue, const std::optional<QDate> &day);

/// The edits that toggle a label on several issues together: it is removed if all of them have it, else added. Issues
/// that already have the wanted state get no edit. Removing a label removes every occurrence; adding appends it.
QList<OptimisticEdit> labelToggleEdits(const IssueList &issues, const QString &label);
