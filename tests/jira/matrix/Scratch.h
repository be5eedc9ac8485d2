#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The folder in which the program of the tests has its profile, its caches and its temporary files.
namespace Scratch {

/// Made on the first call, for the rest of the process; the variables that lead programs there are set to it.
QString folder();
/// The files below the folder, in whatever way they are hidden, that hold the bytes.
QStringList filesWith(const QByteArray &bytes);

} // namespace Scratch
