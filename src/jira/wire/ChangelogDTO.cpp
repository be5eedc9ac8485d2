#include "jira/wire/ChangelogDTO.h"

#include "jira/wire/Models.h"

#include <algorithm>
#include <vector>

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
    // Most history entries concern other fields, so the author is converted only when it is needed.
    for (const History::Item &item : *history.items) {
        if (auto kind = kindOf(item))
            events.append({*history.created, modelOf(history.author), *std::move(kind)});
    }
}

/// Sorts before the entries of the same date.
constexpr qsizetype Creation = -1;

/// The usable entries as indexes with their dates, and the creation, sorted by date.
std::vector<std::pair<qint64, qsizetype>> sortedByDate(const QList<History> &histories,
                                                       const QDateTime &creation)
{
    std::vector<std::pair<qint64, qsizetype>> order;
    order.reserve(size_t(histories.size()) + 1);
    order.emplace_back(creation.toMSecsSinceEpoch(), Creation);
    for (qsizetype i = 0; i < histories.size(); ++i) {
        if (histories[i].created && histories[i].items)
            order.emplace_back(histories[i].created->toMSecsSinceEpoch(), i);
    }
    std::ranges::sort(order);
    return order;
}

} // namespace

QList<ActivityEvent> ChangelogDTO::events(const ActivityEvent &creation) const
{
    const QList<History> entries = histories.value_or(QList<History>());
    const auto order = sortedByDate(entries, creation.date);
    QList<ActivityEvent> events;
    events.reserve(qsizetype(order.size()));
    for (const auto &[date, index] : order) {
        if (index == Creation)
            events.append(creation);
        else
            append(events, entries[index]);
    }
    return events;
}
