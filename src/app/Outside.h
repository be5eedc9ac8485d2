#pragma once

#include "jira/JiraCredentials.h"
#include "model/IssueService.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Keychain.h"
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
    /// Goes before the parts above, and ends what waits for it, which may use them.
    std::unique_ptr<Keychain> keychain;
    UserCalendar calendar;
    /// Opens a session on made-up data, in the time that the clock tells.
    std::function<std::shared_ptr<IssueService>(Clock &, const UserCalendar &)> makeDemo;

    /// Opens a session on a site.
    std::function<std::shared_ptr<IssueService>(const JiraCredentials &, Clock &,
                                                const UserCalendar &)>
        makeClient;

    /// The machine, the desktop and the user's own preferences.
    static Outside system();
};
