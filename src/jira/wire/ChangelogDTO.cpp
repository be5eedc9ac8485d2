#include "jira/wire/ChangelogDTO.h"

#include "jira/JiraDate.h"
#include "jira/wire/Models.h"

namespace {

using History = ChangelogDTO::History;

/// Which field changed: its identifier, or for older entries its name in lower case.
QString changedField(const History::Item &item)
{
    return item.fieldId ? *item.fieldId : item.field.value_or(QString()).toLower();
}

/// What the item says happened, for the changes that matter here.
std::optional<ActivityEvent::Kind> kindOf(const History::Item &item)
{
    const QString field = changedField(item);
    if (field == u"status" && item.toString)
        return ActivityEvent::StatusChanged{item.fromString, *item.toString};
    if (field == u"assignee")
        return ActivityEvent::AssigneeChanged{item.toString};
    return std::nullopt;
}

void append(QList<ActivityEvent> &events, const History &history)
{
    const auto date = JiraDate::parse(history.created);
    if (!date || !history.items)
        return;
    // Most histories tell of other fields: their authors are never looked at.
    for (const History::Item &item : *history.items) {
        if (auto kind = kindOf(item))
            events.append({*date, modelOf(history.author), *std::move(kind)});
    }
}

} // namespace

QList<ActivityEvent> ChangelogDTO::events() const
{
    QList<ActivityEvent> events;
    if (!histories)
        return events;
    for (const History &history : *histories)
        append(events, history);
    return events;
}
