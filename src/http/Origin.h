#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

/// Scheme, host and port: what credentials belong to.
struct Origin
{
    QString scheme;
    QString host;
    /// The scheme's own where the address names none; -1 for a scheme that has none.
    int port = -1;

    static Origin of(const QUrl &url);

    bool operator==(const Origin &) const = default;
};

/// A secret and the only place that may see it.
struct Identity
{
    Origin origin;
    /// The value of the header `Authorization`; empty for none.
    QByteArray authorization;
};
