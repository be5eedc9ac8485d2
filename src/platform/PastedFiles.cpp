#include "platform/PastedFiles.h"

#include <QMimeData>

QList<QUrl> localFilesOf(const QMimeData *data)
{
    QList<QUrl> files = data ? data->urls() : QList<QUrl>();
    files.removeIf([](const QUrl &address) { return !address.isLocalFile(); });
    return files;
}
