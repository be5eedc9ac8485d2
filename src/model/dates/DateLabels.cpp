#include "model/dates/DateLabels.h"

using namespace Qt::StringLiterals;

QString compactRelative(const QDateTime &date, const QDateTime &now, const UserCalendar &calendar)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    constexpr qint64 week = 7 * day;

    const qint64 seconds = date.secsTo(now);
    if (seconds < minute)
        return u"à l'instant"_s;
    if (seconds < hour)
        return QString::number(seconds / minute) + " min"_L1;
    if (seconds < day)
        return QString::number(seconds / hour) + " h"_L1;
    if (seconds < week)
        return QString::number(seconds / day) + " j"_L1;
    return dayAndShortMonth(calendar.day(date), calendar.locale);
}

QString agoText(const QDateTime &date, const QDateTime &now, const UserCalendar &calendar)
{
    constexpr qint64 minute = 60;
    constexpr qint64 week = minute * 60 * 24 * 7;

    const qint64 seconds = date.secsTo(now);
    QString relative = compactRelative(date, now, calendar);
    if (seconds < minute)
        return relative;
    return seconds < week ? u"il y a "_s + relative : u"le "_s + relative;
}

QString dueLabel(const QDate &day, const QDateTime &now, const UserCalendar &calendar)
{
    switch (calendar.day(now).daysTo(day)) {
    case 0:
        return u"Aujourd'hui"_s;
    case 1:
        return u"Demain"_s;
    case -1:
        return u"Hier"_s;
    default:
        return dayAndShortMonth(day, calendar.locale);
    }
}

QString weekdayDayMonthAndTime(const QDateTime &date, const UserCalendar &calendar)
{
    const QLocale &locale = calendar.locale;
    const QString time =
        locale.toString(date.toTimeZone(calendar.zone).time(), QLocale::ShortFormat);
    const QString joint = locale.language() == QLocale::French ? u" à "_s : u", "_s;
    return weekdayDayAndMonth(calendar.day(date), locale) + joint + time;
}
