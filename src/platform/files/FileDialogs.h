#pragma once

#include <QCoro/QCoroTask>
#include <QList>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <QWindow>

#include <optional>

/// Dialogs in which the user chooses files. UI thread only. A dialog belongs to a window, which may be null; several
/// may be open at a time.
class FileDialogs
{
public:
    FileDialogs() = default;
    virtual ~FileDialogs() = default;
    FileDialogs(const FileDialogs &) = delete;
    FileDialogs &operator=(const FileDialogs &) = delete;

    /// The files of any type that the user chooses; empty if the dialog is cancelled. The title is also the name of the
    /// dialog.
    virtual QCoro::Task<QList<QUrl>> filesToOpen(QString title, QPointer<QWindow> window) = 0;
    /// The place at which to save a file, for which `name` is proposed; nothing if the dialog is cancelled. The dialog
    /// lets the user create folders, and asks before it returns the place of an existing file.
    virtual QCoro::Task<std::optional<QUrl>> placeToSave(QString title, QString name,
                                                         QPointer<QWindow> window) = 0;
};
