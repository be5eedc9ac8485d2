#pragma once

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

/// The user's locale, which determines the language and the first day of the week, and the user's time zone. Functions
/// that compute days or print dates take it as an argument, so that their results depend on their arguments only.
struct UserCalendar
{
    QLocale locale;
    QTimeZone zone;

    /// The locale and the time zone of the system. A system locale without a language ("C") is replaced by French.
    static UserCalendar system();
    /// The locale to use for a given system locale: the same locale, or the French one if it has no language.
    static QLocale localeFor(const QLocale &systemLocale);

    /// The calendar day of an instant in the user's time zone.
    QDate day(const QDateTime &instant) const;
    /// The first instant of a day in the user's time zone, as UTC.
    QDateTime startOfDay(const QDate &day) const;
};

/// A time interval in UTC that includes its start and excludes its end.
struct DateInterval
{
    QDateTime start;
    QDateTime end;

    bool contains(const QDateTime &instant) const { return instant >= start && instant < end; }
    bool operator==(const DateInterval &) const = default;
};
