#pragma once

#include "platform/files/FileDialogs.h"

/// The dialogs of the toolkit, which are those of the desktop where Qt has a plugin for it. Needs a `QApplication`.
class QtFileDialogs final : public FileDialogs
{
public:
    QCoro::Task<QList<QUrl>> filesToOpen(QString title, QPointer<QWindow> window) override;
    QCoro::Task<std::optional<QUrl>> placeToSave(QString title, QString name,
                                                 QPointer<QWindow> window) override;
};
