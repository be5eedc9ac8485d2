#pragma once

#include <QByteArray>
#include <QCoro/QCoroTask>
#include <QImage>
#include <QString>
#include <QUrl>

/// Encodes a picture and writes it to a file, outside the caller's thread.
namespace CaptureFile {

/// The picture in PNG format; empty if it cannot be encoded.
QCoro::Task<QByteArray> png(QImage image);
/// Writes the bytes to a file called `name` in a new folder below `parent`. The file is never deleted. Returns the
/// file's address; fails with `Failure`.
QCoro::Task<QUrl> store(QByteArray bytes, QString name, QString parent);

} // namespace CaptureFile
