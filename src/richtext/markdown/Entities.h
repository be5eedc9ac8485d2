#pragma once

#include <QByteArray>

/// Character references as in HTML: "&amp;", "&#233;", "&#xE9;".
namespace Entities {

/// What a reference stands for, in UTF-8; an unknown name stands for itself. A number that is no character (zero, a
/// surrogate, beyond Unicode) gives U+FFFD.
QByteArray decoded(const QByteArray &reference);

} // namespace Entities
