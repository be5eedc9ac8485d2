#pragma once

#include "platform/bundles/BundleManifest.h"

#include <QByteArray>
#include <QMap>
#include <QString>

/// A bundle on disk that a test makes and spoils.
class TestBundle
{
public:
    /// The secrets of the maker and of somebody else.
    static QByteArray makersSeed() { return QByteArray(32, 'm'); }
    static QByteArray strangersSeed() { return QByteArray(32, 's'); }

    /// A bundle of version 1.5 (build 122) with a program and two other files, signed by the maker. Nothing is written
    /// before `write`.
    TestBundle();

    /// Writes the files, the manifest and, if the manifest has a key, its signature into a new folder.
    void write(const QString &folder) const;
    /// The content of all files by path, the manifest and the signature included. `write` writes these.
    QMap<QByteArray, QByteArray> content() const;

    BundleManifest manifest;
    /// The secret that the manifest is signed with; empty for a bundle without signature.
    QByteArray seed = makersSeed();
    /// The files by path. Those below "bin" are executable.
    QMap<QByteArray, QByteArray> files;
};

/// Writes a file and the folders above it.
void writeFile(const QString &path, const QByteArray &content, bool isExecutable = false);
/// The content of a file; a null array if it cannot be read.
QByteArray readFile(const QString &path);
