#pragma once

#include "jira/JiraCredentials.h"
#include "model/IssueService.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Keychain.h"
#include "platform/Preferences.h"
#include "platform/StatusHost.h"
#include "platform/SystemCalendar.h"
#include "platform/bundles/AppBundles.h"
#include "platform/shortcuts/DesktopShortcuts.h"
#include "update/UpdateTransport.h"

#include <functional>
#include <memory>

/// The external services that the program depends on. Tests and benchmarks replace them by their own.
struct Outside
{
    std::unique_ptr<Clock> clock;
    std::unique_ptr<Preferences> preferences;
    std::unique_ptr<Desktop> desktop;
    std::unique_ptr<StatusHost> statusHost;
    std::unique_ptr<SystemCalendar> calendar;
    /// Null if the system has none.
    std::unique_ptr<DesktopShortcuts> shortcuts;
    /// Declared after the members above, so that it is destroyed before them. Destroying it ends waiting operations,
    /// which may use those members.
    std::unique_ptr<Keychain> keychain;
    /// Creates the back end of the demo; its times come from the clock.
    std::function<std::shared_ptr<IssueService>(Clock &, const SystemCalendar &)> makeDemo;

    /// Creates the back end for a site.
    std::function<std::shared_ptr<IssueService>(const JiraCredentials &, Clock &,
                                                const SystemCalendar &)>
        makeClient;

    /// What the running program is, and how another version takes its place.
    std::shared_ptr<const AppBundles> bundles;
    /// Creates what reads the feed of updates and fetches archives.
    std::function<std::unique_ptr<UpdateTransport>(Clock &)> makeUpdateTransport;
    /// The parent of the working folders of updates.
    QString temporaryFolder;

    /// The services of the machine and its desktop, with the user's own preferences.
    static Outside system();
};
