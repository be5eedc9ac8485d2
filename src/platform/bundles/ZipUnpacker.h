#pragma once

#include <QString>

/// Unpacks zip archives from a source that is not trusted yet.
namespace ZipUnpacker {

/// What an archive may contain at most. The defaults are about five times what a bundle with all libraries has.
struct Limits
{
    qint64 entries = 20'000;
    /// The size in bytes of one file.
    qint64 fileSize = 512LL * 1024 * 1024;
    /// The size in bytes of all files.
    qint64 wholeSize = 1024LL * 1024 * 1024;
};

/// Unpacks an archive into an existing folder. Creates only regular files with the permissions 0755 or 0644 and folders
/// with 0755, overwrites nothing and writes nothing outside the folder. Stops at the first entry that is refused: a path
/// that leads out, a link, a special file, special permissions, a path that occurs twice, anything encrypted or damaged,
/// or more than the limits permit. Fails with `UpdateError::Kind::Tool`; what was written until then stays.
void unpack(const QString &archive, const QString &folder, const Limits &limits);

} // namespace ZipUnpacker
