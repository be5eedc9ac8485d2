#pragma once

#include "platform/SystemCalendar.h"

#include <QFileSystemWatcher>

#include <functional>

/// Follows the time zone of the system, which is the target of the link `/etc/localtime`. Whoever changes it, whether
/// systemd, a desktop or the administrator, replaces the link; this changes the folder, which is watched. The locale of
/// a process comes from its environment and cannot change while it runs.
class SystemCalendarLinux final : public SystemCalendar
{
    Q_OBJECT

public:
    using Read = std::function<UserCalendar()>;

    /// Calls `read` after each change in `folder`.
    explicit SystemCalendarLinux(Read read = &UserCalendar::system,
                                 const QString &folder = QStringLiteral("/etc"));

private:
    void refresh();

    Read m_read;
    QFileSystemWatcher m_watcher;
};
