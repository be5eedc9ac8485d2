#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// The address to open when a user follows a link, or nothing if it must not be opened: only whole addresses of web
/// pages (http and https, with a host) and of mail recipients (mailto) may be.
std::optional<QUrl> openableAddress(const QString &address);

/// The host that an address opens, in lower case and in the encoding of the domain name system ("xn--"); for a mail
/// address, the host of its first recipient. Empty if there is none.
QString hostOf(const QUrl &address);

/// The first host that the text names and that is not the host of the address; nothing if there is none. "www." makes no
/// difference, and a sub-domain is another host. A word with dots counts as a host if it can be one: its last part
/// consists of letters, and it does not look like the name of a file, unless "http://", "www." or a path surrounds it.
std::optional<QString> otherHostNamed(const QString &text, const QUrl &address);

/// The address as users should see it: with the host in the encoding of the domain name system, so that no letter can
/// pass for another, with invisible characters made visible, and cut after 400 characters.
QString shownAddress(const QString &address);

/// The tooltip of a link, in French: its true address, after a warning if the text of the link names another host, or if
/// the address contains a user name, which can pass for a host. An address that must not be opened is named as such.
QString linkToolTip(const QString &text, const QString &address);
