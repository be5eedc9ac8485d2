#pragma once

#include "model/DateParts.h"
#include "model/UserCalendar.h"

#include <QDate>
#include <QDateTime>
#include <QString>

/// How long ago an instant was: "à l'instant" below a minute and for the future, then whole minutes ("5 min"), hours
/// ("3 h") and days ("6 j"); from seven days on the day and the short month.
QString compactRelative(const QDateTime &date, const QDateTime &now, const UserCalendar &calendar);

/// "Aujourd'hui", "Demain" or "Hier", otherwise the day and the short month.
QString dueLabel(const QDate &day, const QDateTime &now, const UserCalendar &calendar);

/// "samedi 31 octobre à 14:32": the weekday, the day, the month and the time in full, in the user's zone.
QString weekdayDayMonthAndTime(const QDateTime &date, const UserCalendar &calendar);
