#pragma once

#include <QByteArray>
#include <QCoro/QCoroTask>
#include <QImage>
#include <QString>
#include <QUrl>

/// A picture as a file, made off the caller's thread.
namespace CaptureFile {

/// The picture as PNG; empty when it cannot be one.
QCoro::Task<QByteArray> png(QImage image);
/// Writes the bytes under this name, in a new folder of its own below `parent`, where they stay. Fails with `Failure`.
QCoro::Task<QUrl> store(QByteArray bytes, QString name, QString parent);

} // namespace CaptureFile
