#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

// These functions print parts of a date in the order and with the punctuation of the locale's long date format. An
// invalid date gives an empty string.

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
/// "octobre 2026", with the month's name in its standalone form.
QString monthAndYear(const QDate &day, const QLocale &locale);

/// The text with the first letter of each word in upper case and the other letters in lower case.
QString capitalizedWords(const QString &text, const QLocale &locale);
