#pragma once

#include <QByteArray>
#include <QStringView>

/// Encodes one line so that a parser for whole documents applies only inline rules to it, and decodes the result.
///
/// - A no-break space is added at each end. The rules for emphasis treat it as white space, like the ends of a line. It
///   starts no block, is not trimmed, and prevents the parser from seeing a trailing backslash or a hard break.
/// - A single "~" is replaced by a pair of braces, because the parser would treat it as strikethrough like "~~".
/// - A carriage return is replaced by a pair of other white space, because the parser would treat it as a line break.
namespace LineGuard {

/// The encoded line in UTF-8. U+0000 and unpaired surrogates become U+FFFD.
QByteArray guarded(QStringView line);
/// The encoded form of a text that is inserted into an encoded line, such as the result of a character reference.
QByteArray dressed(const QByteArray &text);
/// The original text of a part of an encoded line; parts must not split a pair.
QString undressed(const QByteArray &text);

/// The character at each end of an encoded line.
inline constexpr QChar edge = u'\u00A0';

} // namespace LineGuard
