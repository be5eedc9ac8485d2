#pragma once

#include <QByteArrayView>
#include <QString>

/// The paths of files inside a bundle and inside an archive.
namespace BundlePath {

/// What is wrong with a path.
enum class Fault {
    None,
    /// It begins at the root of the file system.
    Absolute,
    /// It has a part "..".
    LeadsOut,
    /// It is empty, too long, has an empty part or a part ".", a backslash, or a character that is not printable ASCII.
    Invalid
};

/// Examines a path whose parts are separated by "/". It has at most 1000 bytes and each part at most 200, so that it
/// can be created below any working folder.
Fault faultOf(QByteArrayView path);

/// The path as a text for the user: characters that are not printable become "?", and a long path is cut.
QString shown(QByteArrayView path);

} // namespace BundlePath
