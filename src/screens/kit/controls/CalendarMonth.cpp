#include "screens/kit/controls/CalendarMonth.h"

#include "model/dates/DateParts.h"
#include "model/dates/UserCalendar.h"

namespace {

constexpr int weekLength = 7;

/// The index of a day in the locale's week, 0 to 6.
int placeInWeek(const QDate &day, const QLocale &locale)
{
    return (day.dayOfWeek() - locale.firstDayOfWeek() + weekLength) % weekLength;
}

QDate firstOfMonth(const QDate &day)
{
    return {day.year(), day.month(), 1};
}

} // namespace

QList<CalendarDay> calendarDays(const QDate &day, const QLocale &locale)
{
    if (!day.isValid())
        return {};
    const QDate first = firstOfMonth(day);
    QList<CalendarDay> days(placeInWeek(first, locale));
    for (QDate next = first; next.month() == first.month(); next = next.addDays(1))
        days.append({next.day(), next.toString(Qt::ISODate), weekdayDayAndMonth(next, locale)});
    return days;
}

QStringList weekdayLetters(const QLocale &locale)
{
    QStringList letters;
    for (int i = 0; i < weekLength; ++i) {
        const int day = (locale.firstDayOfWeek() - 1 + i) % weekLength + 1;
        letters += locale.standaloneDayName(day, QLocale::NarrowFormat).toUpper();
    }
    return letters;
}

CalendarMonth::CalendarMonth(QObject *parent) : CalendarMonth(UserCalendar::system().locale, parent)
{
}

CalendarMonth::CalendarMonth(const QLocale &locale, QObject *parent)
    : QObject(parent), m_locale(locale)
{
}

void CalendarMonth::setDay(const QString &day)
{
    pick(QDate::fromString(day, Qt::ISODate));
}

void CalendarMonth::setToday(const QString &today)
{
    const QDate day = QDate::fromString(today, Qt::ISODate);
    if (m_today == day)
        return;
    m_today = day;
    Q_EMIT todayChanged();
    if (!m_day.isValid())
        show(m_today);
}

QString CalendarMonth::title() const
{
    return monthAndYear(m_month, m_locale);
}

void CalendarMonth::turn(int months)
{
    show(m_month.addMonths(months));
}

void CalendarMonth::moveDays(int count)
{
    pick(m_day.isValid() ? m_day.addDays(count) : m_today);
}

void CalendarMonth::moveMonths(int count)
{
    pick(m_day.isValid() ? m_day.addMonths(count) : m_today);
}

void CalendarMonth::moveToWeekStart()
{
    if (m_day.isValid())
        moveDays(-placeInWeek(m_day, m_locale));
}

void CalendarMonth::moveToWeekEnd()
{
    if (m_day.isValid())
        moveDays(weekLength - 1 - placeInWeek(m_day, m_locale));
}

void CalendarMonth::pick(const QDate &day)
{
    if (m_day == day)
        return;
    m_day = day;
    show(day);
    Q_EMIT dayChanged();
}

void CalendarMonth::show(const QDate &day)
{
    if (!day.isValid() || (m_month.isValid() && firstOfMonth(day) == firstOfMonth(m_month)))
        return;
    m_month = day;
    Q_EMIT monthChanged();
}
