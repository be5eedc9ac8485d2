#include "platform/macos/DesktopMac.h"

#include "platform/PastedFiles.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>

#import <AppKit/AppKit.h>

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
    NSString *best = [NSApp.effectiveAppearance
        bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
    return [best isEqualToString:NSAppearanceNameDarkAqua];
}

bool DesktopMac::prefersReducedMotion() const
{
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
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
