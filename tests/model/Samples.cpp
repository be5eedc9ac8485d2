#include "Samples.h"

namespace Samples {

UserCalendar paris()
{
    return {QLocale(QLocale::French, QLocale::France), QTimeZone("Europe/Paris")};
}

UserCalendar newYork()
{
    return {QLocale(QLocale::English, QLocale::UnitedStates), QTimeZone("America/New_York")};
}

QDateTime parisTime(const QDate &day, const QTime &time)
{
    return QDateTime(day, time, paris().zone);
}

} // namespace Samples
