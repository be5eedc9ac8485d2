#pragma once

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

/// Where the user is in time: the language and week of their locale, and their time zone. Everything that computes days
/// or prints dates takes one, so that results depend on their arguments alone.
struct UserCalendar
{
    QLocale locale;
    QTimeZone zone;

    /// The system's language and zone. A system that names no language ("C") speaks French, as the program does.
    static UserCalendar system();
    /// The locale to use on a system of the given one: itself, or that of France for a system without a language.
    static QLocale localeFor(const QLocale &systemLocale);

    /// The calendar day of an instant, in the user's zone.
    QDate day(const QDateTime &instant) const;
    /// The first instant of a day, in UTC.
    QDateTime startOfDay(const QDate &day) const;
};

/// A stretch of time in UTC, closed at its start and open at its end.
struct DateInterval
{
    QDateTime start;
    QDateTime end;

    bool contains(const QDateTime &instant) const { return instant >= start && instant < end; }
    bool operator==(const DateInterval &) const = default;
};
