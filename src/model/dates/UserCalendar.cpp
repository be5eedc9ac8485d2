#include "model/dates/UserCalendar.h"

QLocale UserCalendar::localeFor(const QLocale &systemLocale)
{
    return systemLocale.language() == QLocale::C ? QLocale(QLocale::French, QLocale::France)
                                                 : systemLocale;
}

UserCalendar UserCalendar::system()
{
    return {localeFor(QLocale::system()), QTimeZone::systemTimeZone()};
}

QDate UserCalendar::day(const QDateTime &instant) const
{
    return instant.toTimeZone(zone).date();
}

QDateTime UserCalendar::startOfDay(const QDate &day) const
{
    return day.startOfDay(zone).toUTC();
}
