#include "jira/wire/ChangelogDTO.h"

#include "jira/wire/Models.h"

namespace {

using History = ChangelogDTO::History;

/// The identifier of the changed field; for older entries, which have none, its name in lower case.
QString changedField(const History::Item &item)
{
    return item.fieldId ? *item.fieldId : item.field.value_or(QString()).toLower();
}

/// The event that the item describes; nothing for changes that the program does not use.
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
    if (!history.created || !history.items)
        return;
    // Most history entries concern other fields, so the author is converted only when it is needed.
    for (const History::Item &item : *history.items) {
        if (auto kind = kindOf(item))
            events.append({*history.created, modelOf(history.author), *std::move(kind)});
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
