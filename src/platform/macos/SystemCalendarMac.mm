#include "platform/macos/SystemCalendarMac.h"

#import <Foundation/Foundation.h>

/// Listens to the changes of the system for as long as it exists.
class SystemCalendarMac::Observers {
public:
    explicit Observers(SystemCalendarMac *calendar)
    {
        NSNotificationCenter *center = NSNotificationCenter.defaultCenter;
        m_zone = [center addObserverForName:NSSystemTimeZoneDidChangeNotification
                                     object:nil
                                      queue:NSOperationQueue.mainQueue
                                 usingBlock:^(NSNotification *) {
                                     calendar->refreshZone();
                                 }];
        m_locale = [center addObserverForName:NSCurrentLocaleDidChangeNotification
                                       object:nil
                                        queue:NSOperationQueue.mainQueue
                                   usingBlock:^(NSNotification *) {
                                       calendar->refreshLocale();
                                   }];
    }

    ~Observers()
    {
        [NSNotificationCenter.defaultCenter removeObserver:m_zone];
        [NSNotificationCenter.defaultCenter removeObserver:m_locale];
    }

private:
    id m_zone;
    id m_locale;
};

SystemCalendarMac::SystemCalendarMac()
    : SystemCalendar(UserCalendar::system()), m_observers(std::make_unique<Observers>(this))
{
}

SystemCalendarMac::~SystemCalendarMac() = default;

void SystemCalendarMac::refreshZone()
{
    const UserCalendar calendar = UserCalendar::system();
    // Reading the zone resets the system's cache of it, which may cause the same notification again.
    if (calendar.zone != current().zone)
        setCurrent(calendar);
}

void SystemCalendarMac::refreshLocale()
{
    setCurrent(UserCalendar::system());
}

std::unique_ptr<SystemCalendar> SystemCalendar::ofThisSystem()
{
    return std::make_unique<SystemCalendarMac>();
}
