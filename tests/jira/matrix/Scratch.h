#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The folder for the profile, the caches and the temporary files of the test program.
namespace Scratch {

/// Creates the folder on the first call and sets the environment variables that determine these paths. It exists until
/// the process ends.
QString folder();
/// The files below the folder, including hidden ones, that contain the bytes.
QStringList filesWith(const QByteArray &bytes);

} // namespace Scratch
