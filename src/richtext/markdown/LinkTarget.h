#pragma once

#include <QByteArray>
#include <QString>

/// What a link in Markdown points to.
namespace LinkTarget {

/// The target as typed, with what a URL cannot hold percent-encoded; a valid "%20" stays. Empty for an empty one.
QString absoluteString(const QByteArray &utf8);

} // namespace LinkTarget
