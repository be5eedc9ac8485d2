#pragma once

#include "platform/bundles/BundleManifest.h"
#include "update/ReleaseInfo.h"

#include <QDateTime>

/// Makes a release out of a folder with files. Every operation fails with `Failure`, whose text is in English and for
/// the person who makes the release.
namespace ReleaseWriter {

/// What the manifest says besides the files.
struct Names
{
    QString identifier;
    QString version;
    QString build;
    QString feed;
};

/// Reads a secret key: 64 hexadecimal digits, with white space around them.
QByteArray seedFrom(const QByteArray &text);

/// Gives all files in the folder `bundle` their fixed permissions and writes the manifest and its signature. Refuses
/// links, special files and names that an update could not contain.
void writeManifest(const QString &bundle, const Names &names, const QByteArray &seed);

/// Packs a bundle into a zip archive. The bytes depend only on the content: entries are sorted, belong to nobody in
/// particular and have the time `time`.
void writeArchive(const QString &bundle, const QString &archive, const QDateTime &time);

/// The feed for an archive. The address of the archive is its file name, relative to the feed.
ReleaseInfo releaseOf(const QString &archive, const Names &names, const QString &minimum,
                      const QDateTime &time, const QString &notes);

/// Does with a feed and an archive beside it what an installed Velmora of the same maker does. `temporary` is an existing
/// folder.
void check(const QString &feed, const QString &temporary, const QString &identifier,
           const QByteArray &publicKey);

} // namespace ReleaseWriter
