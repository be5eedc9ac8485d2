#pragma once

#include "model/dates/DateParts.h"
#include "model/dates/UserCalendar.h"

#include <QDate>
#include <QDateTime>
#include <QString>

/// The time elapsed since `date`: "à l'instant" below one minute and for future dates, then whole minutes ("5 min"),
/// hours ("3 h") and days ("6 j"). From seven days on, the day and the short month.
QString compactRelative(const QDateTime &date, const QDateTime &now, const UserCalendar &calendar);

/// The same in a sentence: "à l'instant", "il y a 5 min", "il y a 6 j", "le 12 nov.".
QString agoText(const QDateTime &date, const QDateTime &now, const UserCalendar &calendar);

/// "Aujourd'hui", "Demain" or "Hier" relative to `now`; the day and the short month for any other day.
QString dueLabel(const QDate &day, const QDateTime &now, const UserCalendar &calendar);

/// "samedi 31 octobre à 14:32": the weekday, the day, the month and the time in full, in the user's zone.
QString weekdayDayMonthAndTime(const QDateTime &date, const UserCalendar &calendar);
