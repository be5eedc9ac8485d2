#pragma once

#include <QByteArray>

/// HTML character references: "&amp;", "&#233;", "&#xE9;".
namespace Entities {

/// The text that a reference stands for, in UTF-8; a reference with an unknown name is returned unchanged. A number
/// that is not a valid character (zero, a surrogate, beyond Unicode) gives U+FFFD.
QByteArray decoded(const QByteArray &reference);

} // namespace Entities
