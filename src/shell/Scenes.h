#pragma once

#include "shell/SettingsTabs.h"
#include "shell/WindowMemory.h"
#include "state/AppStore.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickWindow>

#include <memory>

/// The windows of the program: one main window, one window for each issue key, one for the settings. Asking for one that
/// is there brings it forward; windows of issues and of the settings are gone when they are closed, the main window is
/// kept for the next time.
class Scenes : public QObject
{
    Q_OBJECT

public:
    /// All references outlive the windows.
    Scenes(QQmlEngine &engine, AppStore &store, Preferences &preferences);
    ~Scenes() override;

    /// Null before the main window was first shown.
    QQuickWindow *mainWindow() const { return m_main.get(); }
    /// Null unless the issue has a window.
    QQuickWindow *issueWindow(const QString &key) const { return m_issues.value(key); }
    QQuickWindow *settingsWindow() const { return m_settings; }
    /// No window can be seen.
    bool isAllClosed() const;

    /// False when the description of the window cannot be loaded.
    bool showMain();
    void showIssue(const QString &key);
    void showSettings();

Q_SIGNALS:
    /// The last window that could be seen was closed.
    void allClosed();

private:
    QVariantMap mainProperties();
    QQuickWindow *make(const QString &file, const QVariantMap &properties);
    /// Follows a window from now on.
    void watch(QQuickWindow *window);
    void forget(QQuickWindow *window);

    QQmlEngine &m_engine;
    AppStore &m_store;
    WindowMemory m_memory;
    SettingsTabs m_tabs;
    std::unique_ptr<QQuickWindow> m_main;
    QHash<QString, QQuickWindow *> m_issues;
    QQuickWindow *m_settings = nullptr;
    /// Closed, and to be deleted with the next turn of the event loop.
    QList<QPointer<QQuickWindow>> m_leaving;
};
