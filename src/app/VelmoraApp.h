#pragma once

#include "app/AppDelegate.h"
#include "app/InputFrames.h"
#include "app/JiraSessions.h"
#include "app/Outside.h"
#include "app/SiteImageFetcher.h"
#include "shell/Farewell.h"
#include "state/AppStore.h"
#include "update/Updater.h"
#include "update/ui/UpdateScreens.h"

#include <QQmlEngine>

#include <optional>

/// The application object. Owns the store and its services for the lifetime of the process, and opens the windows.
class VelmoraApp
{
public:
    explicit VelmoraApp(Outside outside = Outside::system());

    /// Opens the main window and starts the session; false if the QML of the window cannot be loaded.
    bool open();
    /// Ends the process once nothing that the user changed is still being sent, see `Farewell`. It waits a few seconds for the deletion of a token in progress, so that a user who has signed
    /// out is not signed in at the next start.
    void quit(Farewell::Reason reason);

    AppStore &store() { return m_store; }
    Updater &updater() { return m_updater; }
    Scenes &scenes() { return m_scenes; }
    AppDelegate &delegate() { return m_delegate; }
    /// Null if the system has none.
    DesktopShortcuts *shortcuts() { return m_outside.shortcuts.get(); }
    /// Null before `open`.
    QQuickWindow *mainWindow() const { return m_scenes.mainWindow(); }

private:
    AppStoreContext context();
    UpdaterContext updaterContext();
    void bootstrap();
    void end();

    Outside m_outside;
    SiteImageFetcher m_images;
    JiraSessions m_sessions;
    AppStore m_store;
    // Declared after the store, so that the screens are destroyed before the data that they display.
    Farewell m_farewell;
    std::unique_ptr<UpdateTransport> m_updateTransport;
    Updater m_updater;
    UpdateScreens m_updates;
    QQmlEngine m_engine;
    Scenes m_scenes;
    AppDelegate m_delegate;
    /// Not on platforms where it is of no use.
    std::optional<InputFrames> m_inputFrames;
    Clock::TimerHandle m_lastMoment;
};
