#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// One file of a bundle.
struct BundleFile
{
    /// The path inside the bundle.
    QByteArray path;
    bool isExecutable = false;
    /// In bytes.
    qint64 size = 0;
    /// The SHA-256 of the content, in 64 lower-case hexadecimal digits.
    QByteArray sha256;

    /// The permissions that the file must have: 0755 if it is executable and 0644 if not.
    unsigned mode() const { return isExecutable ? 0755 : 0644; }

    bool operator==(const BundleFile &) const = default;
};

/// The description of a bundle on Linux: the file "MANIFEST" in it. There is exactly one text for each manifest, so
/// that a signature over the text is one over the content:
///
///     velmora-bundle 1
///     identifier fr.orvantis.Velmora
///     version 1.4
///     build 140
///     feed https://example.org/velmora/latest.json        (may be absent)
///     key <the maker's public key in 64 hexadecimal digits>   (absent if the bundle is not signed)
///     file 755 <size> <sha256> bin/velmora                 (one line for each file, sorted by path)
struct BundleManifest
{
    /// The name of the manifest in the bundle.
    static constexpr auto Name = "MANIFEST";
    /// The name of its signature, which exists if the manifest has a key.
    static constexpr auto SignatureName = "MANIFEST.sig";
    /// The path of the program, which every bundle contains.
    static constexpr auto Program = "bin/velmora";
    /// Larger manifests are refused. The manifest of a bundle with all libraries has about 60 kB.
    static constexpr qint64 LargestSize = 4LL * 1024 * 1024;
    /// The size in bytes of a public key.
    static constexpr qsizetype KeySize = 32;

    QString identifier;
    QString version;
    QString build;
    /// The address of the feed; empty if there is none.
    QString feed;
    /// The maker's public key; absent if the bundle is not signed.
    std::optional<QByteArray> key;
    /// Sorted by path.
    QList<BundleFile> files;

    /// Parses a manifest; nothing for any text that `text` would not have written.
    static std::optional<BundleManifest> parsed(const QByteArray &text);
    QByteArray text() const;

    bool operator==(const BundleManifest &) const = default;
};
