#pragma once

#include "model/dates/UserCalendar.h"

#include <QObject>

#include <memory>

/// The owner of the user's current calendar, which may change while the program runs: the user travels, or changes the
/// settings of the system. Read `current` anew at each use, or after each `changed`. UI thread only.
class SystemCalendar : public QObject
{
    Q_OBJECT

public:
    /// The calendar of the system that the program runs on.
    static std::unique_ptr<SystemCalendar> ofThisSystem();

    const UserCalendar &current() const { return m_current; }

Q_SIGNALS:
    /// `current` has changed. Emitted on macOS after every change of the regional settings, because two locales of the
    /// system compare equal there even if their formats differ.
    void changed();

protected:
    explicit SystemCalendar(UserCalendar current) : m_current(std::move(current)) {}

    /// Stores the calendar and emits `changed`.
    void setCurrent(UserCalendar current)
    {
        m_current = std::move(current);
        Q_EMIT changed();
    }

private:
    UserCalendar m_current;
};
