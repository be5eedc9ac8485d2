#pragma once

#include "shell/StatusMenu.h"

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

/// The program's item among the desktop's status items, with its menu. It follows the store. A choice in the menu is
/// reported by a signal if it needs a window, and carried out directly otherwise. Create it only on desktops that show
/// such items.
class StatusItem : public QObject
{
    Q_OBJECT

public:
    /// The store must outlive this object.
    explicit StatusItem(AppStore &store);

    QMenu &menu() { return m_menu; }

Q_SIGNALS:
    void issueChosen(const QString &key);
    void newIssueChosen();
    void mainWindowChosen();
    void quitChosen();

private:
    void refresh();
    void append(const StatusMenuEntry &entry);
    void carryOut(const StatusMenuEntry &entry);

    AppStore &m_store;
    QList<StatusMenuEntry> m_entries;
    QMenu m_menu;
    QSystemTrayIcon m_icon;
};
