#pragma once

#include "app/Outside.h"
#include "shell/WindowMemory.h"
#include "state/AppStore.h"

#include <QQmlApplicationEngine>

class QQuickWindow;

/// The application object: owns the one store and what the store stands on, for the life of the process, and opens the
/// windows that show it.
class VelmoraApp
{
public:
    explicit VelmoraApp(Outside outside = Outside::system());

    /// Opens the main window and brings the session to its first phase; false when the window's description cannot be
    /// loaded.
    bool open();

    AppStore &store() { return m_store; }
    /// Null before `open`.
    QQuickWindow *mainWindow() const;

private:
    AppStoreContext context();
    QVariantMap rootProperties();

    Outside m_outside;
    AppStore m_store;
    WindowMemory m_windowMemory;
    // Last, so that the screens go before the store they show.
    QQmlApplicationEngine m_engine;
};
