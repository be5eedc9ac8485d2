#pragma once

#include "platform/bundles/TestBundle.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// One entry of an archive that a test makes.
struct TestEntry
{
    QByteArray path;
    QByteArray content;
    /// The type and the permissions, as in `st_mode`; 0100000 is a regular file.
    unsigned mode = 0100644;
    /// What a symbolic link leads to.
    QByteArray link;
};

/// Zip archives, hostile ones too.
namespace TestArchive {

/// An archive with these entries, in this order. It is written byte for byte here, so that nothing is corrected.
QByteArray zip(const QList<TestEntry> &entries);
/// The entries of a bundle in the folder "Velmora.app".
QList<TestEntry> entriesOf(const TestBundle &bundle, const QByteArray &folder = "Velmora.app");
/// An archive in another format, made by libarchive, such as "7zip" or "gnutar".
QByteArray inFormat(const char *format, const QList<TestEntry> &entries);

} // namespace TestArchive
