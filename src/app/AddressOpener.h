#pragma once

#include "shell/Scenes.h"
#include "state/AppStore.h"

#include <QObject>

/// Opens the window of the issue that an address names, see `IssueAddress`. Addresses that name none are ignored. While no
/// session is open, the last address waits for one.
class AddressOpener : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    AddressOpener(AppStore &store, Scenes &scenes);

    void open(const QString &address);

private:
    void openWaiting();

    AppStore &m_store;
    Scenes &m_scenes;
    QString m_waiting;
};
