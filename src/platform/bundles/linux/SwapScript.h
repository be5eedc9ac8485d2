#pragma once

#include <QByteArray>
#include <QString>

/// The script that puts a new bundle in the place of the old one.
namespace SwapScript {

/// The suffix of the folder in which the new bundle is copied beside the old one, and in which the old one is until it
/// is deleted.
inline constexpr auto BackupSuffix = ".previous";
/// The path, inside a bundle, of the program that exchanges two folders.
inline constexpr auto Exchanger = "bin/velmora-swap";

/// The text of the script. It waits for the end of the process `pid`, copies the bundle at `app` beside the one at
/// `target`, exchanges the two at once, deletes the old one and starts what is at `target`. Wherever it is interrupted,
/// a complete bundle is at `target`: the old one until the exchange, and the new one afterwards.
QByteArray text(qint64 pid, const QString &target, const QString &app);

} // namespace SwapScript
