#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

/// A file manager that records what it is asked to show.
class FakeFileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    explicit FakeFileManager(QDBusConnection bus)
    {
        bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                           QDBusConnection::ExportScriptableContents);
        bus.registerService(QStringLiteral("org.freedesktop.FileManager1"));
    }

    QStringList shown;

    Q_SCRIPTABLE void ShowItems(const QStringList &addresses, const QString &)
    {
        shown += addresses;
    }
};
