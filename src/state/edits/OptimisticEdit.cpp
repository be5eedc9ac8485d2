#include "state/edits/OptimisticEdit.h"

#include <algorithm>

namespace {

template <typename... Cases>
struct Overloaded : Cases...
{
    using Cases::operator()...;
};

QStringList without(QStringList labels, const QString &label)
{
    labels.removeAll(label);
    return labels;
}

bool hasAttachment(const Issue &issue, const Attachment &attachment)
{
    return std::ranges::any_of(issue.attachments,
                               [&](const Attachment &other) { return other.id == attachment.id; });
}

/// The attachment's id; nothing if the change does not concern an attachment.
std::optional<QString> attachmentId(const OptimisticEdit::Change &change)
{
    if (const auto *removal = std::get_if<AttachmentRemoval>(&change))
        return removal->attachment.id;
    if (const auto *addition = std::get_if<AttachmentAddition>(&change))
        return addition->attachment.id;
    return std::nullopt;
}

} // namespace

void StatusEdit::apply(Issue &issue) const
{
    status.apply(issue);
    updated.apply(issue);
}

void StatusEdit::layOver(Issue &issue) const
{
    status.apply(issue);
    issue.updated = std::max(issue.updated, updated.after);
}

void StatusEdit::setBefore(const Issue &issue)
{
    status.setBefore(issue);
    updated.setBefore(issue);
}

void StatusEdit::setAfter(const Issue &issue)
{
    status.setAfter(issue);
    updated.setAfter(issue);
}

void AttachmentRemoval::apply(Issue &issue) const
{
    issue.attachments.removeIf([&](const Attachment &other) { return other.id == attachment.id; });
}

bool AttachmentRemoval::isShownBy(const Issue &issue) const
{
    return !hasAttachment(issue, attachment);
}

AttachmentAddition AttachmentRemoval::reversed() const
{
    return {attachment};
}

void AttachmentAddition::apply(Issue &issue) const
{
    if (!hasAttachment(issue, attachment))
        issue.attachments += attachment;
}

bool AttachmentAddition::isShownBy(const Issue &issue) const
{
    return hasAttachment(issue, attachment);
}

void OptimisticEdit::apply(Issue &issue) const
{
    std::visit([&](const auto &edit) { edit.apply(issue); }, change);
}

void OptimisticEdit::layOver(Issue &issue) const
{
    std::visit([&](const auto &edit) { edit.layOver(issue); }, change);
}

bool OptimisticEdit::isShownBy(const Issue &issue) const
{
    return std::visit([&](const auto &edit) { return edit.isShownBy(issue); }, change);
}

void OptimisticEdit::setBefore(const Issue &issue)
{
    std::visit([&](auto &edit) { edit.setBefore(issue); }, change);
}

void OptimisticEdit::setAfter(const Issue &issue)
{
    std::visit([&](auto &edit) { edit.setAfter(issue); }, change);
}

OptimisticEdit OptimisticEdit::reversed() const
{
    return {key, std::visit([](const auto &edit) { return Change(edit.reversed()); }, change)};
}

bool OptimisticEdit::hasSameTarget(const OptimisticEdit &other) const
{
    if (key != other.key)
        return false;
    const auto attachment = attachmentId(change);
    return attachment ? attachment == attachmentId(other.change)
                      : change.index() == other.change.index();
}

std::optional<IssueFieldUpdate> OptimisticEdit::fieldUpdate() const
{
    using Update = std::optional<IssueFieldUpdate>;
    return std::visit(Overloaded{
                          [](const StatusEdit &) { return Update(); },
                          [](const FieldEdit<&Issue::assignee> &) { return Update(); },
                          [](const AttachmentRemoval &) { return Update(); },
                          [](const AttachmentAddition &) { return Update(); },
                          [](const FieldEdit<&Issue::priority> &edit) {
                              return edit.after ? Update({IssueFieldUpdate::Priority{*edit.after}})
                                                : Update();
                          },
                          [](const FieldEdit<&Issue::labels> &edit) {
                              return Update({IssueFieldUpdate::Labels{edit.after}});
                          },
                          [](const FieldEdit<&Issue::summary> &edit) {
                              return Update({IssueFieldUpdate::Summary{edit.after}});
                          },
                          [](const FieldEdit<&Issue::description> &edit) {
                              return Update({IssueFieldUpdate::Description{edit.after}});
                          },
                          [](const FieldEdit<&Issue::dueDate> &edit) {
                              return Update({IssueFieldUpdate::DueDate{edit.after}});
                          },
                      },
                      change);
}

std::optional<OptimisticEdit> statusEdit(const Issue &issue, const IssueStatus &status,
                                         const QDateTime &now)
{
    if (issue.status.groupKey() == status.groupKey())
        return std::nullopt;
    return OptimisticEdit{issue.key, StatusEdit{{issue.status, status}, {issue.updated, now}}};
}

std::optional<OptimisticEdit> priorityEdit(const Issue &issue, const IssuePriority &priority)
{
    if (issue.priority && issue.priority->id() == priority.id())
        return std::nullopt;
    return OptimisticEdit{issue.key, FieldEdit<&Issue::priority>{issue.priority, priority}};
}

std::optional<OptimisticEdit> assigneeEdit(const Issue &issue, const std::optional<JiraUser> &user)
{
    const auto idOf = [](const std::optional<JiraUser> &person) {
        return person ? std::optional(person->id) : std::nullopt;
    };
    if (idOf(issue.assignee) == idOf(user))
        return std::nullopt;
    return OptimisticEdit{issue.key, FieldEdit<&Issue::assignee>{issue.assignee, user}};
}

std::optional<OptimisticEdit> summaryEdit(const Issue &issue, const QString &title)
{
    if (issue.summary == title)
        return std::nullopt;
    return OptimisticEdit{issue.key, FieldEdit<&Issue::summary>{issue.summary, title}};
}

OptimisticEdit labelsEdit(const Issue &issue, const QStringList &labels)
{
    return {issue.key, FieldEdit<&Issue::labels>{issue.labels, labels}};
}

OptimisticEdit descriptionEdit(const Issue &issue, const std::optional<ADFNode> &document)
{
    return {issue.key, FieldEdit<&Issue::description>{issue.description, document}};
}

OptimisticEdit dueDateEdit(const Issue &issue, const std::optional<QDate> &day)
{
    return {issue.key, FieldEdit<&Issue::dueDate>{issue.dueDate, day}};
}

QList<OptimisticEdit> labelToggleEdits(const IssueList &issues, const QString &label)
{
    const auto hasLabel = [&](const SharedIssue &issue) { return issue->labels.contains(label); };
    const bool isRemoved = std::ranges::all_of(issues, hasLabel);
    QList<OptimisticEdit> edits;
    for (const SharedIssue &issue : issues) {
        if (isRemoved)
            edits.append(labelsEdit(*issue, without(issue->labels, label)));
        else if (!hasLabel(issue))
            edits.append(labelsEdit(*issue, issue->labels + QStringList{label}));
    }
    return edits;
}
