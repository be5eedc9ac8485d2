#pragma once

#include "platform/files/FileManager.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>

/// Asks the file manager over D-Bus. If there is none, opens the folder with the default program.
class FileManagerLinux final : public QObject, public FileManager
{
    Q_OBJECT

public:
    /// `bus` is the bus on which the file manager is registered; `openFolder` opens the address of a folder.
    FileManagerLinux(QDBusConnection bus, std::function<void(const QUrl &)> openFolder);

    void reveal(const QUrl &file) override;

private:
    QDBusConnection m_bus;
    std::function<void(const QUrl &)> m_openFolder;
};
