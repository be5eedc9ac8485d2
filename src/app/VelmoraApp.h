#pragma once

#include "app/AppDelegate.h"
#include "app/JiraSessions.h"
#include "app/Outside.h"
#include "app/SiteImages.h"
#include "state/AppStore.h"

#include <QQmlEngine>

/// The application object: owns the one store and what the store stands on, for the life of the process, and opens the
/// windows that show it.
class VelmoraApp
{
public:
    explicit VelmoraApp(Outside outside = Outside::system());

    /// Opens the main window and brings the session to its first phase; false when the window's description cannot be
    /// loaded.
    bool open();
    /// Ends the process. A token that is being deleted has a few seconds for it, so that nobody who signed out is found
    /// signed in at the next start.
    void quit();

    AppStore &store() { return m_store; }
    Scenes &scenes() { return m_scenes; }
    AppDelegate &delegate() { return m_delegate; }
    /// Null before `open`.
    QQuickWindow *mainWindow() const { return m_scenes.mainWindow(); }

private:
    AppStoreContext context();
    void bootstrap();

    Outside m_outside;
    SiteImages m_images;
    JiraSessions m_sessions;
    AppStore m_store;
    // After the store, so that the screens go before what they show.
    QQmlEngine m_engine;
    Scenes m_scenes;
    AppDelegate m_delegate;
    Clock::TimerHandle m_lastMoment;
};
