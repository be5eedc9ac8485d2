#include "app/Outside.h"

#include "demo/DemoService.h"

Outside Outside::system()
{
    Outside outside;
    outside.clock = std::make_unique<SystemClock>();
    outside.preferences = std::make_unique<Preferences>();
    outside.desktop = Desktop::ofThisSystem();
    outside.statusHost = StatusHost::ofThisSystem();
    outside.calendar = UserCalendar::system();
    outside.makeDemo = [](Clock &clock, const UserCalendar &calendar) {
        return std::make_shared<DemoService>(clock, calendar);
    };
    return outside;
}
