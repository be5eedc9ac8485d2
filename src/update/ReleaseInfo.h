#pragma once

#include "model/Failure.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <qqmlintegration.h>

#include <expected>
#include <optional>

/// One release as the feed describes it. Every value is as it was received; nothing is normalised.
struct ReleaseInfo
{
    Q_GADGET
    QML_VALUE_TYPE(releaseInfo)
    Q_PROPERTY(QString version MEMBER version CONSTANT FINAL)
    Q_PROPERTY(QString build MEMBER build CONSTANT FINAL)
    Q_PROPERTY(QString notesOrEmpty READ notesOrEmpty CONSTANT FINAL)

public:
    /// The version that users see.
    QString version;
    /// The build number, which is also the identity of the release.
    QString build;
    /// The address of the archive; may be relative to the address of the feed.
    QString url;
    /// The SHA-256 of the archive in hexadecimal digits of any case.
    QString sha256;
    /// The size of the archive in bytes; not checked.
    std::optional<qint64> size;
    /// The lowest version of the system that the release runs on, dotted: that of macOS, or on Linux of the C library.
    std::optional<QString> minimumSystemVersion;
    /// The date of the release; not parsed.
    std::optional<QString> publishedAt;
    /// The release notes in Markdown.
    std::optional<QString> notes;

    QString notesOrEmpty() const { return notes.value_or(QString()); }

    /// Decodes a JSON object. Unknown members are ignored. Fails if a required member is absent or a member has the
    /// wrong type; an optional member may be null.
    static std::expected<ReleaseInfo, Failure> decoded(const QByteArray &json);
    /// The JSON object with the same members; absent values are left out.
    QByteArray encoded() const;

    bool operator==(const ReleaseInfo &) const = default;
};
