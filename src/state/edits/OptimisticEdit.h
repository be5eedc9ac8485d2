#pragma once

#include "model/Issue.h"
#include "model/IssueEdits.h"

#include <optional>
#include <type_traits>
#include <variant>

/// The change of one field of an issue: what it was and what it becomes.
template <auto Field>
struct FieldEdit
{
    using Value = std::remove_cvref_t<decltype(std::declval<Issue>().*Field)>;

    Value before;
    Value after;

    void apply(Issue &issue) const { issue.*Field = after; }
    /// The same over a record from the site.
    void layOver(Issue &issue) const { apply(issue); }
    bool isShownBy(const Issue &issue) const { return issue.*Field == after; }
    void setBefore(const Issue &issue) { before = issue.*Field; }
    void setAfter(const Issue &issue) { after = issue.*Field; }
    FieldEdit reversed() const { return {after, before}; }

    bool operator==(const FieldEdit &) const = default;
};

/// A change of status, which is also the only edit that dates the issue.
struct StatusEdit
{
    FieldEdit<&Issue::status> status;
    FieldEdit<&Issue::updated> updated;

    void apply(Issue &issue) const;
    /// A date that the site tells counts when it is later.
    void layOver(Issue &issue) const;
    bool isShownBy(const Issue &issue) const { return status.isShownBy(issue); }
    void setBefore(const Issue &issue);
    void setAfter(const Issue &issue);
    StatusEdit reversed() const { return {status.reversed(), updated.reversed()}; }

    bool operator==(const StatusEdit &) const = default;
};

struct AttachmentAddition;

/// An attachment that goes.
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

/// An attachment that comes: a new one, or one whose removal was refused. It stands at the end, once.
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

/// An edit that shows before the service has taken it: it can be applied to every copy of the issue, and undone there
/// without touching any other field.
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
    /// Whether the record has the edit's value already.
    bool isShownBy(const Issue &issue) const;
    /// Takes the record's value for the one before the edit, or for the one after it.
    void setBefore(const Issue &issue);
    void setAfter(const Issue &issue);
    /// The edit that puts the field back to what it was before.
    OptimisticEdit reversed() const;
    /// Whether both change the same field of the same issue, or the same attachment.
    bool hasSameTarget(const OptimisticEdit &other) const;
    /// What the service is told; nothing for a status, an assignee or an attachment, which have operations of their own.
    std::optional<IssueFieldUpdate> fieldUpdate() const;

    bool operator==(const OptimisticEdit &) const = default;
};

/// Edits of an issue as it is. Nothing where the edit would change nothing: the same status group, the same priority or
/// assignee by its id, the same title.

/// `now` becomes the date of the last change.
std::optional<OptimisticEdit> statusEdit(const Issue &issue, const IssueStatus &status,
                                         const QDateTime &now);
std::optional<OptimisticEdit> priorityEdit(const Issue &issue, const IssuePriority &priority);
/// Nobody unassigns.
std::optional<OptimisticEdit> assigneeEdit(const Issue &issue, const std::optional<JiraUser> &user);
std::optional<OptimisticEdit> summaryEdit(const Issue &issue, const QString &title);
OptimisticEdit labelsEdit(const Issue &issue, const QStringList &labels);
OptimisticEdit descriptionEdit(const Issue &issue, const std::optional<ADFNode> &document);
OptimisticEdit dueDateEdit(const Issue &issue, const std::optional<QDate> &day);

/// The edits that toggle a label on all issues together: off when every one of them has it, else on. Issues that have
/// the wanted state already need no edit. Removing takes every occurrence; adding appends.
QList<OptimisticEdit> labelToggleEdits(const IssueList &issues, const QString &label);
