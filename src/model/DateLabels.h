#pragma once

#include "model/UserCalendar.h"

#include <QDate>
#include <QDateTime>
#include <QString>

/// How long ago an instant was: "à l'instant" below a minute and for the future, then whole minutes ("5 min"), hours
/// ("3 h") and days ("6 j"); from seven days on the day and the short month.
QString compactRelative(const QDateTime &date, const QDateTime &now, const UserCalendar &calendar);

/// "Aujourd'hui", "Demain" or "Hier", otherwise the day and the short month.
QString dueLabel(const QDate &day, const QDateTime &now, const UserCalendar &calendar);

/// Parts of a date in the order and with the signs of the locale's own long date. An invalid date gives an empty text.

/// "31 oct." in French, "Oct 31" in American English.
QString dayAndShortMonth(const QDate &day, const QLocale &locale);
/// "31 octobre".
QString dayAndMonth(const QDate &day, const QLocale &locale);
/// "31 oct. 2026".
QString dayShortMonthAndYear(const QDate &day, const QLocale &locale);
/// "octobre 2026"; the month's name in the form that stands alone.
QString monthAndYear(const QDate &day, const QLocale &locale);

/// Each word with an upper-case first letter and the others in lower case.
QString capitalizedWords(const QString &text, const QLocale &locale);
