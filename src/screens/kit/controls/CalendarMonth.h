#pragma once

#include <QDate>
#include <QList>
#include <QLocale>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// A place in a month's grid.
struct CalendarDay
{
    Q_GADGET
    QML_VALUE_TYPE(calendarDay)
    Q_PROPERTY(int number MEMBER number CONSTANT FINAL)
    Q_PROPERTY(QString day MEMBER day CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)

public:
    /// 0 for a place before the first day.
    int number = 0;
    /// As in "2026-10-31".
    QString day;
    /// "samedi 31 octobre", for screen readers.
    QString name;

    bool operator==(const CalendarDay &) const = default;
};

/// The days of the month in which `day` lies, behind as many empty places as the locale's week has before its first.
QList<CalendarDay> calendarDays(const QDate &day, const QLocale &locale);
/// The letters of the week's days, in the locale's order.
QStringList weekdayLetters(const QLocale &locale);

/// A month to pick a day from. Days reach QML as texts such as "2026-10-31": a date there would be an instant, and move
/// with the time zone.
class CalendarMonth : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The day that is picked; empty for none.
    Q_PROPERTY(QString day READ day WRITE setDay NOTIFY dayChanged FINAL)
    Q_PROPERTY(QString today READ today WRITE setToday NOTIFY todayChanged FINAL)
    /// "octobre 2026"
    Q_PROPERTY(QString title READ title NOTIFY monthChanged FINAL)
    Q_PROPERTY(QList<CalendarDay> days READ days NOTIFY monthChanged FINAL)
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT FINAL)

public:
    explicit CalendarMonth(QObject *parent = nullptr);
    CalendarMonth(const QLocale &locale, QObject *parent);

    QString day() const { return m_day.toString(Qt::ISODate); }
    /// Shows the day's month. A text that is no day is none.
    void setDay(const QString &day);
    QString today() const { return m_today.toString(Qt::ISODate); }
    /// Shows the month of today while no day is picked.
    void setToday(const QString &today);
    QString title() const;
    QList<CalendarDay> days() const { return calendarDays(m_month, m_locale); }
    QStringList weekdays() const { return weekdayLetters(m_locale); }

    /// Shows a month as many months away.
    Q_INVOKABLE void turn(int months);
    /// Picks the day as many days away from the picked one; today, when none is picked.
    Q_INVOKABLE void moveDays(int count);
    /// The same by months; the day of a shorter month is its last.
    Q_INVOKABLE void moveMonths(int count);
    /// Pick the first day of the week of the picked one, and its last.
    Q_INVOKABLE void moveToWeekStart();
    Q_INVOKABLE void moveToWeekEnd();

Q_SIGNALS:
    void dayChanged();
    void todayChanged();
    void monthChanged();

private:
    void pick(const QDate &day);
    void show(const QDate &day);

    QLocale m_locale;
    QDate m_day;
    QDate m_today;
    /// Any day of the month that is shown.
    QDate m_month;
};
