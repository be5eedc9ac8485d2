#pragma once

#include "platform/StatusHost.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>

class QDBusPendingCallWatcher;

/// Asks the status notifier watcher on a bus whether a host displays the items.
class StatusHostLinux final : public StatusHost
{
    Q_OBJECT

public:
    explicit StatusHostLinux(const QDBusConnection &bus);

    bool isPresent() const override { return m_isPresent; }

private Q_SLOTS:
    void ask();

private:
    void answer(QDBusPendingCallWatcher *call);
    void setIsPresent(bool present);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    bool m_isPresent = false;
};
