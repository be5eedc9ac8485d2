#pragma once

#include "platform/StatusHost.h"
#include "shell/Scenes.h"
#include "shell/StatusItem.h"

#include <QObject>

#include <memory>

/// Controls the lifetime of the process and its status item. The status item exists as long as the desktop displays
/// such items. While it is displayed, the process continues without a window; otherwise it ends with its last window.
/// If the status items disappear while no window is open, the main window is opened again, so that the process does not
/// continue invisibly.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive this object.
    AppDelegate(Scenes &scenes, AppStore &store, StatusHost &host);

    /// Null while the desktop displays no status items.
    StatusItem *statusItem() const { return m_item.get(); }
    /// Brings the main window to the front; creates it if there is none.
    void showMainWindow();

Q_SIGNALS:
    /// The process should end.
    void quitRequested();

private:
    void followHost();
    void makeItem();
    void createIssue();
    void endWithoutItem();

    Scenes &m_scenes;
    AppStore &m_store;
    StatusHost &m_host;
    std::unique_ptr<StatusItem> m_item;
};
