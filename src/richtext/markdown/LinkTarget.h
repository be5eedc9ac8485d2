#pragma once

#include <QByteArray>
#include <QString>

/// The target of a link in Markdown.
namespace LinkTarget {

/// The target as typed, with characters that a URL must not contain percent-encoded; valid escapes such as "%20" are
/// kept. Empty for an empty target.
QString absoluteString(const QString &target);

} // namespace LinkTarget
