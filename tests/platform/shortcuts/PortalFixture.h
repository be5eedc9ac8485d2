#pragma once

#include "platform/PrivateBus.h"
#include "platform/shortcuts/ScriptedPortal.h"
#include "platform/shortcuts/linux/PortalShortcuts.h"
#include "support/RunUntil.h"

#include <QDBusObjectPath>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// The shortcuts of a desktop on a bus of its own, with a portal that the test controls.
class PortalFixture : public testing::Test
{
protected:
    using Call = ScriptedPortal::Call;

    // The values of a response.
    static constexpr uint Done = 0;
    static constexpr uint Cancelled = 1;
    static constexpr uint Failed = 2;

    void startPortal(const QVariant &version = 1U)
    {
        portal = std::make_unique<ScriptedPortal>(bus.connection(portalName), version);
    }
    void stopPortal()
    {
        portal.reset();
        QDBusConnection::disconnectFromBus(portalName);
        portalName += QStringLiteral("+");
    }
    /// Starts the program, and waits until it has found the portal.
    void start()
    {
        startWithoutPortal();
        EXPECT_TRUE(runUntil([this] { return shortcuts->isPresent(); }));
    }
    void startWithoutPortal()
    {
        shortcuts = std::make_unique<PortalShortcuts>(client, preferences);
        activations = std::make_unique<QSignalSpy>(shortcuts.get(), &DesktopShortcuts::activated);
    }
    /// Waits for the call with this number, counted from 1.
    Call callNumber(qsizetype number)
    {
        EXPECT_TRUE(runUntil([&] { return portal->calls.size() >= number; }));
        return portal->calls.value(number - 1);
    }
    /// Lets the portal create the session of the call with this number; the call that binds its shortcuts.
    Call bindAfter(qsizetype number)
    {
        portal->grant(callNumber(number));
        return callNumber(number + 1);
    }
    /// Chooses shortcuts in the portal's dialog.
    Call chooseShortcuts()
    {
        shortcuts->choose();
        const Call bind = bindAfter(portal->calls.size() + 1);
        portal->respond(bind, Done, bothBound());
        settle();
        return bind;
    }
    QVariantMap bothBound() const
    {
        return ScriptedPortal::bound(
            {ScriptedPortal::withKeys(newIssue, QStringLiteral("Ctrl+Alt+N")),
             ScriptedPortal::withKeys(palette, QStringLiteral("Super+K"))});
    }
    /// Waits until everything that was sent so far has arrived: the bus keeps the order of each sender, and answers a sender
    /// in its order.
    void settle()
    {
        auto ping = QDBusMessage::createMethodCall(client.baseService(), QStringLiteral("/"),
                                                   QStringLiteral("org.freedesktop.DBus.Peer"),
                                                   QStringLiteral("Ping"));
        const auto sent = QDBusConnection(portalName).asyncCall(ping);
        EXPECT_TRUE(runUntil([&] { return sent.isFinished(); }));
        auto back = QDBusMessage::createMethodCall(
            QDBusConnection(portalName).baseService(), QStringLiteral("/"),
            QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
        const auto answered = client.asyncCall(back);
        EXPECT_TRUE(runUntil([&] { return answered.isFinished(); }));
        QCoreApplication::processEvents();
    }
    bool isRemembered()
    {
        return preferences.flag(PortalShortcuts::BoundKey.toString()).value_or(false);
    }
    void remember() { preferences.setFlag(PortalShortcuts::BoundKey.toString(), true); }
    QString keys(const QString &id) { return shortcuts->keys(id); }

    const QString newIssue = DesktopShortcuts::NewIssue.toString();
    const QString palette = DesktopShortcuts::Palette.toString();
    const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
    const QString interface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
    const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

    PrivateBus bus;
    QTemporaryDir folder;
    Preferences preferences{folder.filePath(QStringLiteral("Velmora.ini"))};
    QDBusConnection client = bus.connection(QStringLiteral("client"));
    QString portalName = QStringLiteral("portal");
    std::unique_ptr<ScriptedPortal> portal;
    std::unique_ptr<PortalShortcuts> shortcuts;
    std::unique_ptr<QSignalSpy> activations;
};
