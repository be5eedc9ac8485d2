#include "richtext/markdown/ListLine.h"

#include <QString>

namespace {

constexpr qsizetype tabWidth = 4;
constexpr int longestNumber = 3;

bool isBullet(QStringView line)
{
    return line.size() >= 2 && line[1] == u' ' &&
           (line[0] == u'-' || line[0] == u'*' || line[0] == u'+');
}

/// Parses the text after a bullet, including the check box if there is one.
Markdown::ListLine bulletLine(QStringView text)
{
    constexpr qsizetype boxWidth = 4;
    Markdown::ListLine line;
    line.checked = text.startsWith(u"[x] ") || text.startsWith(u"[X] ");
    line.isTask = line.checked || text.startsWith(u"[ ] ");
    line.text = line.isTask ? text.sliced(boxWidth) : text;
    return line;
}

/// The length of the first character if it is a numeric character of any script, otherwise 0.
qsizetype numberCharacter(QStringView text)
{
    if (text.isEmpty())
        return 0;
    if (text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate())
        return QChar::isNumber(QChar::surrogateToUcs4(text[0], text[1])) ? 2 : 0;
    return text[0].isNumber() ? 1 : 0;
}

std::optional<Markdown::ListLine> orderedLine(QStringView line)
{
    QStringView rest = line;
    int digits = 0;
    for (; digits <= longestNumber && numberCharacter(rest) > 0; ++digits)
        rest = rest.sliced(numberCharacter(rest));
    const bool isMarker = rest.startsWith(u". ") || rest.startsWith(u") ");
    if (digits < 1 || digits > longestNumber || !isMarker)
        return std::nullopt;
    bool parsed = false;
    const int number = line.chopped(rest.size()).toInt(&parsed);
    Markdown::ListLine result;
    result.ordered = true;
    result.number = parsed ? number : 1;
    result.text = rest.sliced(2);
    return result;
}

} // namespace

std::optional<Markdown::ListLine> Markdown::parseListLine(QStringView line)
{
    qsizetype indent = 0;
    for (; line.startsWith(u' ') || line.startsWith(u'\t'); line = line.sliced(1))
        indent += line.front() == u'\t' ? tabWidth : 1;
    auto result = isBullet(line) ? bulletLine(line.sliced(2)) : orderedLine(line);
    if (result)
        result->indent = indent;
    return result;
}
