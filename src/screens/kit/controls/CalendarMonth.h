#pragma once

#include <QDate>
#include <QList>
#include <QLocale>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// A cell in the grid of a month.
struct CalendarDay
{
    Q_GADGET
    QML_VALUE_TYPE(calendarDay)
    Q_PROPERTY(int number MEMBER number CONSTANT FINAL)
    Q_PROPERTY(QString day MEMBER day CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)

public:
    /// The day of the month. 0 for a cell before the first day.
    int number = 0;
    /// The date, as in "2026-10-31".
    QString day;
    /// The text for screen readers, as in "samedi 31 octobre".
    QString name;

    bool operator==(const CalendarDay &) const = default;
};

/// The days of the month that contains `day`, preceded by one empty cell for each day of the locale's week before the
/// first of the month.
QList<CalendarDay> calendarDays(const QDate &day, const QLocale &locale);
/// The initials of the days of the week, in the locale's order.
QStringList weekdayLetters(const QLocale &locale);

/// A month for choosing a day. Days are passed to QML as text such as "2026-10-31", because a date in QML is a point in
/// time and changes with the time zone.
class CalendarMonth : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The chosen day. Empty if there is none.
    Q_PROPERTY(QString day READ day WRITE setDay NOTIFY dayChanged FINAL)
    Q_PROPERTY(QString today READ today WRITE setToday NOTIFY todayChanged FINAL)
    /// The month as text, as in "octobre 2026".
    Q_PROPERTY(QString title READ title NOTIFY monthChanged FINAL)
    Q_PROPERTY(QList<CalendarDay> days READ days NOTIFY monthChanged FINAL)
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT FINAL)

public:
    explicit CalendarMonth(QObject *parent = nullptr);
    CalendarMonth(const QLocale &locale, QObject *parent);

    QString day() const { return m_day.toString(Qt::ISODate); }
    /// Chooses a day and shows its month. A text that is not a date chooses none.
    void setDay(const QString &day);
    QString today() const { return m_today.toString(Qt::ISODate); }
    /// Sets the present day, whose month is shown while no day is chosen.
    void setToday(const QString &today);
    QString title() const;
    QList<CalendarDay> days() const { return calendarDays(m_month, m_locale); }
    QStringList weekdays() const { return weekdayLetters(m_locale); }

    /// Shows the month that is `months` later, or earlier if negative.
    Q_INVOKABLE void turn(int months);
    /// Chooses the day that is `count` days after the chosen one, or the present day if none is chosen.
    Q_INVOKABLE void moveDays(int count);
    /// The same with months. If the target month is too short for the day, its last day is chosen.
    Q_INVOKABLE void moveMonths(int count);
    /// Choose the first and the last day of the week that contains the chosen day.
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
    /// Any day of the shown month.
    QDate m_month;
};
