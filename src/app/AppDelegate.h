#pragma once

#include "platform/StatusHost.h"
#include "shell/Scenes.h"
#include "shell/StatusItem.h"

#include <QObject>

#include <memory>

/// What the process does as a whole: it has an item among the desktop's status items wherever these are shown, lives on
/// without a window only while that item can be seen, and otherwise ends with its last window. When the status items go
/// away while no window is there, the main window comes back, so that nobody is left with a process that cannot be seen.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    /// All outlive it.
    AppDelegate(Scenes &scenes, AppStore &store, StatusHost &host);

    /// Null where no status items are shown.
    StatusItem *statusItem() const { return m_item.get(); }
    /// Brings the main window forward; makes it where there is none.
    void showMainWindow();

Q_SIGNALS:
    /// The process is to end.
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
