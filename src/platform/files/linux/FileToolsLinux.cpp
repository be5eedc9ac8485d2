#include "platform/files/FileTools.h"
#include "platform/files/QtFileDialogs.h"
#include "platform/files/linux/FileManagerLinux.h"
#include "platform/files/linux/PortalFileDialogs.h"

#include <QDesktopServices>

FileTools FileTools::ofThisSystem()
{
    static const FileTools tools{
        .dialogs = std::make_shared<PortalFileDialogs>(QDBusConnection::sessionBus(),
                                                       std::make_shared<QtFileDialogs>()),
        .manager = std::make_shared<FileManagerLinux>(
            QDBusConnection::sessionBus(),
            [](const QUrl &folder) { QDesktopServices::openUrl(folder); })};
    return tools;
}
