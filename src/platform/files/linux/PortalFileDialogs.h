#pragma once

#include "platform/files/FileDialogs.h"

#include <QDBusConnection>
#include <QFuture>
#include <QStringList>
#include <QVariantMap>

#include <memory>

/// The dialogs of the desktop portal. If there is no portal, or if it has no dialogs, others are shown.
class PortalFileDialogs final : public FileDialogs
{
public:
    /// `bus` is the bus on which the portal is registered.
    PortalFileDialogs(QDBusConnection bus, std::shared_ptr<FileDialogs> otherwise);

    QCoro::Task<QList<QUrl>> filesToOpen(QString title, QPointer<QWindow> window) override;
    QCoro::Task<std::optional<QUrl>> placeToSave(QString title, QString name,
                                                 QPointer<QWindow> window) override;

private:
    QDBusConnection m_bus;
    std::shared_ptr<FileDialogs> m_otherwise;
};
