#pragma once

#include <QList>
#include <QUrl>

class QMimeData;

/// The local files that a pasteboard or a drop holds, in their order; none for addresses of other kinds, and none for
/// no data.
QList<QUrl> localFilesOf(const QMimeData *data);
