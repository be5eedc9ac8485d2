#include "app/Outside.h"

#include "demo/DemoService.h"
#include "jira/AttachmentCache.h"
#include "jira/JiraClient.h"
#include "update/HttpTransport.h"

#include <QDir>

Outside Outside::system()
{
    Outside outside;
    outside.clock = std::make_unique<SystemClock>();
    outside.preferences = std::make_unique<Preferences>();
    outside.desktop = Desktop::ofThisSystem();
    outside.statusHost = StatusHost::ofThisSystem();
    outside.keychain = Keychain::ofThisSystem(*outside.clock);
    outside.calendar = SystemCalendar::ofThisSystem();
    outside.shortcuts = DesktopShortcuts::ofThisSystem(*outside.preferences);
    outside.makeDemo = [](Clock &clock, const SystemCalendar &calendar) {
        return std::make_shared<DemoService>(clock, calendar);
    };
    outside.makeClient = [](const JiraCredentials &credentials, Clock &clock,
                            const SystemCalendar &calendar) {
        return std::make_shared<JiraClient>(credentials, clock, calendar,
                                            AttachmentCache::systemFolder());
    };
    outside.bundles = AppBundles::ofThisSystem();
    outside.makeUpdateTransport = [](Clock &clock) {
        return std::make_unique<HttpTransport>(clock, QDir::tempPath());
    };
    outside.temporaryFolder = QDir::tempPath();
    return outside;
}
