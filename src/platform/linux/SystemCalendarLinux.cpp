#include "platform/linux/SystemCalendarLinux.h"

std::unique_ptr<SystemCalendar> SystemCalendar::ofThisSystem()
{
    return std::make_unique<SystemCalendarLinux>();
}

SystemCalendarLinux::SystemCalendarLinux(Read read, const QString &folder)
    : SystemCalendar(read()), m_read(std::move(read)), m_watcher({folder})
{
    // Not the link itself: a watch follows it, and its target stays the same file.
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &SystemCalendarLinux::refresh);
}

void SystemCalendarLinux::refresh()
{
    const UserCalendar calendar = m_read();
    // Other files of the folder change too.
    if (calendar.zone != current().zone)
        setCurrent(calendar);
}
