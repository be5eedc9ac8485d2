#include "model/ActivityPeriod.h"

#include "model/dates/DateParts.h"

#include <QHashFunctions>

using namespace Qt::StringLiterals;

namespace {

/// The first day of the week or month that contains a day.
QDate firstDay(ActivityRange range, const QDate &day, Qt::DayOfWeek firstDayOfWeek)
{
    if (range == ActivityRange::Month)
        return {day.year(), day.month(), 1};
    const int daysIntoWeek = (day.dayOfWeek() - int(firstDayOfWeek) + 7) % 7;
    return day.addDays(-daysIntoWeek);
}

QDate shifted(ActivityRange range, const QDate &day, int periods)
{
    return range == ActivityRange::Month ? day.addMonths(periods)
                                         : day.addDays(qint64(periods) * 7);
}

DateInterval intervalFrom(ActivityRange range, const QDate &start, const UserCalendar &calendar)
{
    return {calendar.startOfDay(start), calendar.startOfDay(shifted(range, start, 1))};
}

bool isUsable(const DateInterval &interval)
{
    return interval.start.isValid() && interval.end.isValid();
}

QString weekTitle(int offset, const QDate &start, const QLocale &locale)
{
    switch (offset) {
    case 0:
        return u"Cette semaine"_s;
    case -1:
        return u"Semaine dernière"_s;
    default:
        return "Semaine du "_L1 + dayAndMonth(start, locale);
    }
}

QString monthTitle(int offset, const QDate &start, const QLocale &locale)
{
    switch (offset) {
    case 0:
        return u"Ce mois-ci"_s;
    case -1:
        return u"Le mois dernier"_s;
    default:
        return capitalizedWords(monthAndYear(start, locale), locale);
    }
}

} // namespace

DateInterval ActivityPeriod::interval(const QDateTime &now, const UserCalendar &calendar) const
{
    const QDate currentStart = firstDay(range, calendar.day(now), calendar.locale.firstDayOfWeek());
    const DateInterval current = intervalFrom(range, currentStart, calendar);
    // The current interval is unusable only for an instant at the limit of the supported calendar dates.
    const DateInterval fallback =
        isUsable(current) ? current : DateInterval{now, now.addSecs(86400)};
    const QDate start = shifted(range, currentStart, offset);
    const DateInterval wanted =
        intervalFrom(range, start.isValid() ? start : currentStart, calendar);
    return isUsable(wanted) ? wanted : fallback;
}

QString ActivityPeriod::title(const QDateTime &now, const UserCalendar &calendar) const
{
    const QDate start = calendar.day(interval(now, calendar).start);
    return range == ActivityRange::Week ? weekTitle(offset, start, calendar.locale)
                                        : monthTitle(offset, start, calendar.locale);
}

QString ActivityPeriod::rangeLabel(const QDateTime &now, const UserCalendar &calendar) const
{
    const DateInterval period = interval(now, calendar);
    const QDate first = calendar.day(period.start);
    // The end is the start of the next period, so one second earlier lies on the last day of this period.
    const QDate last = calendar.day(period.end.addSecs(-1));
    return "du "_L1 + dayAndShortMonth(first, calendar.locale) + " au "_L1 +
           dayShortMonthAndYear(last, calendar.locale);
}

size_t qHash(const ActivityPeriod &period, size_t seed)
{
    return qHashMulti(seed, int(period.range), period.offset, period.teamWide);
}
