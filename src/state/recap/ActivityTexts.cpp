#include "state/recap/ActivityTexts.h"

#include "model/dates/DateLabels.h"

using namespace Qt::StringLiterals;

namespace {

/// The description of the event, up to the name of its author.
QString deed(const ActivityEvent &event, const QString &projectKey, const StatusLookup &statuses)
{
    const auto label = [&](const QString &name) {
        return statuses.named(name, projectKey).displayName();
    };
    if (const auto *change = event.statusChange())
        return (change->from ? label(*change->from) : u"?"_s) + u" → "_s + label(change->to);
    if (const auto *change = event.assigneeChange())
        return u"Assigné à "_s + change->to.value_or(u"personne"_s);
    return u"Créé"_s;
}

} // namespace

QString eventDescription(const ActivityEvent &event, const QString &projectKey,
                         const StatusLookup &statuses, const UserCalendar &calendar)
{
    const QString doer = event.author ? event.author->name : u"Quelqu'un"_s;
    return deed(event, projectKey, statuses) + " par "_L1 + doer + ", "_L1 +
           weekdayDayMonthAndTime(event.date, calendar);
}

QString otherEventsText(qsizetype count)
{
    if (count <= 1)
        return {};
    const QString plural = count > 2 ? u"s"_s : QString();
    return "+ "_L1 + QString::number(count - 1) + " autre"_L1 + plural + u" événement"_s + plural +
           u" sur la période"_s;
}
