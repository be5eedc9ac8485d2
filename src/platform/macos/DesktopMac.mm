#include "platform/macos/DesktopMac.h"

#include "platform/PastedFiles.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>

#import <AppKit/AppKit.h>

namespace {

/// Nothing for the appearance of the system.
NSAppearanceName nameOf(AppearanceMode mode)
{
    switch (mode) {
    case AppearanceMode::Light:
        return NSAppearanceNameAqua;
    case AppearanceMode::Dark:
        return NSAppearanceNameDarkAqua;
    case AppearanceMode::System:
        break;
    }
    return nil;
}

} // namespace

/// Observes changes of the system's appearance during its lifetime.
class DesktopMac::Observers {
public:
    explicit Observers(DesktopMac *desktop)
    {
        const auto tell = ^(NSNotification *) {
            Q_EMIT desktop->appearanceChanged();
        };
        m_theme = [NSDistributedNotificationCenter.defaultCenter
            addObserverForName:@"AppleInterfaceThemeChangedNotification"
                        object:nil
                         queue:NSOperationQueue.mainQueue
                    usingBlock:tell];
        m_motion = [NSWorkspace.sharedWorkspace.notificationCenter
            addObserverForName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                        object:nil
                         queue:NSOperationQueue.mainQueue
                    usingBlock:tell];
    }

    ~Observers()
    {
        [NSDistributedNotificationCenter.defaultCenter removeObserver:m_theme];
        [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:m_motion];
    }

private:
    id m_theme;
    id m_motion;
};

DesktopMac::DesktopMac(QObject *parent) : Desktop(parent), m_observers(std::make_unique<Observers>(this)) {}

DesktopMac::~DesktopMac() = default;

bool DesktopMac::isApplicationActive() const
{
    return NSApp.active;
}

bool DesktopMac::prefersDark() const
{
    // Not the appearance of the application, which `applyAppearance` replaces. The light appearance has no entry.
    NSString *style = [NSUserDefaults.standardUserDefaults stringForKey:@"AppleInterfaceStyle"];
    return [style isEqualToString:@"Dark"];
}

bool DesktopMac::prefersReducedMotion() const
{
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
}

void DesktopMac::applyAppearance(AppearanceMode mode)
{
    NSAppearanceName name = nameOf(mode);
    NSApp.appearance = name ? [NSAppearance appearanceNamed:name] : nil;
}

void DesktopMac::open(const QUrl &address)
{
    QDesktopServices::openUrl(address);
}

void DesktopMac::copyText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

QList<QUrl> DesktopMac::pastedFiles() const
{
    return localFilesOf(QGuiApplication::clipboard()->mimeData());
}

QImage DesktopMac::pastedImage() const
{
    return QGuiApplication::clipboard()->image();
}

std::unique_ptr<Desktop> Desktop::ofThisSystem()
{
    return std::make_unique<DesktopMac>();
}
