#pragma once

#include "model/IssueService.h"
#include "model/dates/UserCalendar.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Preferences.h"
#include "state/SiteSessions.h"

#include <functional>
#include <memory>

/// The external services that the store needs. All references must outlive the store.
struct AppStoreContext
{
    Clock &clock;
    Preferences &preferences;
    Desktop &desktop;
    /// Sessions on real sites.
    SiteSessions &sessions;
    UserCalendar calendar;
    /// Opens a session on made-up data.
    std::function<std::shared_ptr<IssueService>()> makeDemo;
};
