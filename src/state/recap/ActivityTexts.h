#pragma once

#include "model/ActivityEvent.h"
#include "model/dates/UserCalendar.h"
#include "state/recap/StatusLookup.h"

/// What an event of the project's history was, by whom and when, in a sentence: "Créé par Nora, samedi 31 octobre à
/// 14:32".
QString eventDescription(const ActivityEvent &event, const QString &projectKey,
                         const StatusLookup &statuses, const UserCalendar &calendar);

/// "+ 2 autres événements sur la période" beside the latest of `count` events; empty for a single one.
QString otherEventsText(qsizetype count);
