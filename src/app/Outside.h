#pragma once

#include "model/IssueService.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Preferences.h"
#include "platform/StatusHost.h"

#include <functional>
#include <memory>

/// The outside world that the program runs on. Tests and benchmarks put their own parts in place of the machine's.
struct Outside
{
    std::unique_ptr<Clock> clock;
    std::unique_ptr<Preferences> preferences;
    std::unique_ptr<Desktop> desktop;
    std::unique_ptr<StatusHost> statusHost;
    UserCalendar calendar;
    /// Opens a session on made-up data, in the time that the clock tells.
    std::function<std::shared_ptr<IssueService>(Clock &, const UserCalendar &)> makeDemo;

    /// The machine, the desktop and the user's own preferences.
    static Outside system();
};
