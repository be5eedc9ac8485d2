#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

/// The scheme, host and port that credentials belong to.
struct Origin
{
    QString scheme;
    QString host;
    /// The default port of the scheme if the address contains none; -1 for a scheme without a default.
    int port = -1;

    /// The origin of an address.
    static Origin of(const QUrl &url);

    bool operator==(const Origin &) const = default;
};

/// A secret and the only origin that it may be sent to.
struct Identity
{
    Origin origin;
    /// The value of the `Authorization` header; empty for no header.
    QByteArray authorization;
};
