#include "commands/OptionBuilders.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool allTargets(const OptionInputs &inputs, const auto &has)
{
    return !inputs.targets.isEmpty() &&
           std::ranges::all_of(inputs.targets,
                               [&](const SharedIssue &issue) { return has(*issue); });
}

std::optional<QString> digitShortcut(qsizetype position)
{
    constexpr qsizetype digits = 9;
    return position < digits ? std::optional(QString::number(position + 1)) : std::nullopt;
}

std::optional<QString> assigneeID(const Issue &issue)
{
    return issue.assignee ? std::optional(issue.assignee->id) : std::nullopt;
}

OptionItem statusItem(const IssueStatus &status, const OptionInputs &inputs)
{
    return {.id = "status:"_L1 + status.groupKey(),
            .title = status.displayName(),
            .icon = {status},
            .isSelected = allTargets(
                inputs,
                [&](const Issue &issue) { return issue.status.groupKey() == status.groupKey(); }),
            .run = {OptionAction::SetStatus{status, inputs.keys}}};
}

OptionItem priorityItem(const IssuePriority &priority, const OptionInputs &inputs)
{
    return {.id = "priority:"_L1 + priority.id(),
            .title = priority.displayName(),
            .icon = {priority.level()},
            .isSelected = allTargets(inputs,
                                     [&](const Issue &issue) {
                                         return issue.priority &&
                                                issue.priority->id() == priority.id();
                                     }),
            .run = {OptionAction::SetPriority{priority, inputs.keys}}};
}

OptionItem nobodyItem(const OptionInputs &inputs)
{
    return {.id = u"assignee:none"_s,
            .title = u"Non assigné"_s,
            .icon = {OptionIcon::User{}},
            .isSelected = allTargets(inputs, [](const Issue &issue) { return !issue.assignee; }),
            .run = {OptionAction::Assign{std::nullopt, inputs.keys}}};
}

OptionItem assigneeItem(const JiraUser &user, const OptionInputs &inputs)
{
    const bool isMe = inputs.me && inputs.me->id == user.id;
    return {.id = "assignee:"_L1 + user.id,
            .title = user.name,
            .subtitle = isMe ? std::optional(u"Moi"_s) : std::nullopt,
            .icon = {OptionIcon::User{user}},
            .isSelected = allTargets(
                inputs, [&](const Issue &issue) { return assigneeID(issue) == user.id; }),
            .run = {OptionAction::Assign{user, inputs.keys}}};
}

OptionItem labelItem(const QString &label, const OptionInputs &inputs)
{
    return {.id = "label:"_L1 + label,
            .title = label,
            .icon = {OptionIcon::Label{label}},
            .isSelected = allTargets(
                inputs, [&](const Issue &issue) { return issue.labels.contains(label); }),
            .keepsOpen = true,
            .run = {OptionAction::ToggleLabel{label, inputs.keys}}};
}

template <typename T, typename MakeItem>
QList<OptionItem> items(const QList<T> &values, const OptionInputs &inputs, MakeItem makeItem)
{
    QList<OptionItem> result;
    for (const T &value : values)
        result.append(makeItem(value, inputs));
    return result;
}

QList<OptionItem> numbered(QList<OptionItem> items)
{
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i].shortcut = digitShortcut(i);
    return items;
}

} // namespace

QList<OptionItem> options(PickerKind kind, const OptionInputs &inputs)
{
    switch (kind) {
    case PickerKind::Status:
        return numbered(items(statusOptions(inputs), inputs, statusItem));
    case PickerKind::Priority:
        return numbered(items(priorityOptions(inputs), inputs, priorityItem));
    case PickerKind::Assignee:
        return QList{nobodyItem(inputs)} + items(assigneeOptions(inputs), inputs, assigneeItem);
    case PickerKind::Labels:
        return items<QString>(inputs.availableLabels, inputs, labelItem);
    }
    return {};
}
