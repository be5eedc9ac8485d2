#pragma once

#include "model/ActivityEvent.h"
#include "model/dates/UserCalendar.h"
#include "state/recap/StatusLookup.h"

/// A sentence that describes an event of the project's history with its author and time: "Créé par Nora, samedi 31
/// octobre à 14:32".
QString eventDescription(const ActivityEvent &event, const QString &projectKey,
                         const StatusLookup &statuses, const UserCalendar &calendar);

/// The text about the events other than the latest of `count`, such as "+ 2 autres événements sur la période"; empty if
/// there is only one event.
QString otherEventsText(qsizetype count);
