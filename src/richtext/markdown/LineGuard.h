#pragma once

#include <QByteArray>
#include <QStringView>

/// Dresses one line so that a parser of whole documents applies inline rules only, and undresses what comes back.
///
/// - A no-break space stands at each end. It is white space to the rules of emphasis, as the ends of a line are, but
///   opens no block, is not trimmed, and keeps what is behind it from being a trailing backslash or a hard break.
/// - A single "~" is dressed as a pair of braces, since the parser takes it for strikethrough like "~~".
/// - A carriage return is dressed as a pair of other white space, since the parser takes it for the end of the line.
namespace LineGuard {

/// The line in UTF-8, dressed. U+0000 and half surrogate pairs become U+FFFD.
QByteArray guarded(QStringView line);
/// A text within the dressing, such as one that markup has brought in, dressed like its surroundings.
QByteArray dressed(const QByteArray &text);
/// The text of a part of a dressed line; parts must not split a pair.
QString undressed(const QByteArray &text);

/// What stands at each end of a dressed line.
inline constexpr QChar edge = u'\u00A0';

} // namespace LineGuard
