#pragma once

#include <QList>
#include <QUrl>

class QMimeData;

/// The local files in the data of a clipboard or of a drop, in their order. Addresses of other kinds are ignored; null
/// data gives an empty list.
QList<QUrl> localFilesOf(const QMimeData *data);
