#pragma once

#include "platform/shortcuts/DesktopShortcuts.h"
#include "shell/Farewell.h"
#include "shell/WindowMemory.h"
#include "shell/settings/SettingsTabs.h"
#include "state/AppStore.h"
#include "update/ui/UpdateScreens.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickWindow>

#include <memory>

/// The windows of the program: one main window, one window for each issue key, and one for the settings. Opening a
/// window that exists raises it. Windows of issues and of the settings are destroyed when they are closed, and the main
/// window is kept for the next time.
class Scenes : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive the windows, and so must the shortcuts, which may be null.
    Scenes(QQmlEngine &engine, AppStore &store, Preferences &preferences, Farewell &farewell,
           UpdateScreens &updates, DesktopShortcuts *shortcuts);
    ~Scenes() override;

    /// The main window. Null before it was first shown.
    QQuickWindow *mainWindow() const { return m_main.get(); }
    /// The window of an issue. Null if the issue has none.
    QQuickWindow *issueWindow(const QString &key) const { return m_issues.value(key); }
    QQuickWindow *settingsWindow() const { return m_settings; }
    /// True if no window is visible.
    bool isAllClosed() const;

    /// False if the QML description of the window cannot be loaded.
    bool showMain();
    void showIssue(const QString &key);
    void showSettings();
    /// Shows the settings at the reference of shortcuts.
    void showShortcuts();

Q_SIGNALS:
    /// The last visible window was closed.
    void allClosed();

private:
    QVariantMap mainProperties();
    QQuickWindow *make(const QString &file, const QVariantMap &properties);
    /// Starts to observe a window.
    void watch(QQuickWindow *window);
    void forget(QQuickWindow *window);

    QQmlEngine &m_engine;
    AppStore &m_store;
    Farewell &m_farewell;
    UpdateScreens &m_updates;
    DesktopShortcuts *m_shortcuts;
    WindowMemory m_memory;
    SettingsTabs m_tabs;
    std::unique_ptr<QQuickWindow> m_main;
    QHash<QString, QQuickWindow *> m_issues;
    QQuickWindow *m_settings = nullptr;
    /// Windows that are closed and will be deleted in the next iteration of the event loop.
    QList<QPointer<QQuickWindow>> m_leaving;
};
