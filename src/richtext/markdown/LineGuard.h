#pragma once

#include <QByteArray>
#include <QStringView>

#include <optional>

namespace Markdown {

/// One line of text, encoded so that a parser for whole documents applies only inline rules to it.
///
/// - A no-break space stands at each end. The rules for emphasis treat it as white space, like the ends of a line. It
///   starts no block, is not trimmed, and prevents the parser from seeing a trailing backslash or a hard break.
/// - A carriage return, which the parser would treat as the end of a line, is replaced by a kind of white space that
///   does not occur in the line.
class LineGuard
{
public:
    /// Encodes a line. Unpaired surrogates become U+FFFD, as U+0000 does in the parser.
    ///
    /// Nothing if the line should not be parsed: it has carriage returns and every kind of white space, or it has more
    /// than a thousand beginnings of images or of declarations, for which the parser takes quadratic time.
    static std::optional<LineGuard> of(QStringView line);

    /// The encoded line in UTF-8, without the spaces at its ends.
    const QByteArray &encoded() const { return m_encoded; }
    /// The original text of a part of the parsed line. The spaces at the ends are kept.
    QString decoded(const char *utf8) const;

    /// The character at each end of the parsed line, and the same in UTF-8.
    static constexpr QChar edge = u'\u00A0';
    static constexpr QByteArrayView edgeUTF8 = "\u00A0";

private:
    QByteArray m_encoded;
    /// What stands for a carriage return; null if the line has none.
    QChar m_carriageReturn;
};

} // namespace Markdown
