#pragma once

#include <QByteArray>

/// The bytes as one word of a POSIX shell, in single quotes. Every byte except NUL keeps its meaning: quotes, blanks and
/// line breaks too.
inline QByteArray shellQuoted(QByteArray bytes)
{
    return '\'' + bytes.replace("'", "'\\''") + '\'';
}
