#pragma once

#include "platform/SystemCalendar.h"

#include <memory>

/// Follows the time zone and the regional settings of macOS.
class SystemCalendarMac final : public SystemCalendar
{
    Q_OBJECT

public:
    SystemCalendarMac();
    ~SystemCalendarMac() override;

private:
    class Observers;

    void refreshZone();
    void refreshLocale();

    std::unique_ptr<Observers> m_observers;
};
