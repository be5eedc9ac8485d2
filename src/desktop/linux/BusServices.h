#pragma once

#include "desktop/DesktopServices.h"
#include "desktop/linux/ApplicationObject.h"
#include "desktop/linux/RunnerObject.h"
#include "desktop/linux/SearchProvider.h"

#include <QDBusConnection>

/// Exports the objects that desktops call on a bus, under the id of the application. If another process has this name, it
/// keeps it.
class BusServices final : public DesktopServices
{
    Q_OBJECT

public:
    /// Without a connected bus, has no effect. The store must outlive this object.
    BusServices(QDBusConnection bus, AppStore &store);
    ~BusServices() override;

private:
    void takeName();

    QDBusConnection m_bus;
    IssueFinder m_finder;
    ApplicationObject m_application;
    SearchProvider m_search;
    RunnerObject m_runner;
};
