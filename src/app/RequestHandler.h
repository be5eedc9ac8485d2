#pragma once

#include "app/AddressOpener.h"
#include "desktop/Activation.h"

#include <QByteArray>

#include <optional>

/// Carries out what was asked for outside the program's windows: by its first start, by a second one, or by the desktop. See
/// `Requests` for the texts. While no session is open, the last action waits for one, as addresses do.
class RequestHandler : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    RequestHandler(AppStore &store, Scenes &scenes);

    /// Shows the main window, and starts the action or opens the address. Texts that are neither have no effect.
    void carryOut(const Activation &activation, const QByteArray &request);
    /// Carries out the action with the id of a shortcut of the desktop, see `DesktopShortcuts`.
    void carryOutShortcut(const QString &id, const QByteArray &activationToken);

private:
    void start(Command action);
    void startWaiting();

    AppStore &m_store;
    Scenes &m_scenes;
    AddressOpener m_opener;
    std::optional<Command> m_waiting;
};
