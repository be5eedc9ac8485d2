#include "richtext/markdown/LineGuard.h"

#include "richtext/ValidText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// White space by the rules for emphasis, from the rarest.
constexpr QStringView spaces = u"\u205F\u1680\u2001\u2000\u2005\u2004\u2006\u2008\u200A\u2007";

/// In Debian's version of the parser, the time for so many is below that for a few thousand words.
constexpr qsizetype mostBeginnings = 1000;

bool isSlow(QStringView line)
{
    return line.size() > mostBeginnings &&
           std::ranges::any_of(
               std::array{"!["_L1, "<?"_L1, "<!"_L1},
               [&](QLatin1StringView beginning) { return line.count(beginning) > mostBeginnings; });
}

QChar absentSpace(QStringView line)
{
    const auto *const found =
        std::ranges::find_if(spaces, [&](QChar space) { return !line.contains(space); });
    return found == spaces.end() ? QChar() : *found;
}

} // namespace

std::optional<Markdown::LineGuard> Markdown::LineGuard::of(QStringView line)
{
    if (isSlow(line))
        return std::nullopt;
    LineGuard guard;
    if (!line.contains(u'\r')) {
        guard.m_encoded = validUTF8(line);
        return guard;
    }
    guard.m_carriageReturn = absentSpace(line);
    if (guard.m_carriageReturn.isNull())
        return std::nullopt;
    guard.m_encoded = validUTF8(line.toString().replace(u'\r', guard.m_carriageReturn));
    return guard;
}

QString Markdown::LineGuard::decoded(const char *utf8) const
{
    QString text = QString::fromUtf8(utf8);
    if (!m_carriageReturn.isNull())
        text.replace(m_carriageReturn, u'\r');
    return text;
}
