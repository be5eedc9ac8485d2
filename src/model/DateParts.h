#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

// Parts of a date in the order and with the signs of the locale's own long date. An invalid date gives an empty text.

/// "31 oct." in French, "Oct 31" in American English.
QString dayAndShortMonth(const QDate &day, const QLocale &locale);
/// "31 octobre".
QString dayAndMonth(const QDate &day, const QLocale &locale);
/// "samedi 31 octobre", "Saturday, October 31".
QString weekdayDayAndMonth(const QDate &day, const QLocale &locale);
/// "31 oct. 2026".
QString dayShortMonthAndYear(const QDate &day, const QLocale &locale);
/// "31 octobre 2026".
QString dayMonthAndYear(const QDate &day, const QLocale &locale);
/// "octobre 2026"; the month's name in the form that stands alone.
QString monthAndYear(const QDate &day, const QLocale &locale);

/// Each word with an upper-case first letter and the others in lower case.
QString capitalizedWords(const QString &text, const QLocale &locale);
