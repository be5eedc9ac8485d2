#include "state/composing/MentionQuery.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

constexpr int MostCharacters = 30;
constexpr qsizetype MostBlanks = 1;

/// The number of characters as a reader counts them: a letter with its combining marks is one.
int characterCount(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    while (finder.toNextBoundary() > 0)
        ++count;
    return count;
}

bool isLineBreak(QChar character)
{
    constexpr QStringView breaks = u"\n\r\v\f\x85\u2028\u2029";
    return breaks.contains(character);
}

bool isQuery(const QString &words)
{
    return words.count(u' ') <= MostBlanks && std::ranges::none_of(words, isLineBreak) &&
           characterCount(words) <= MostCharacters;
}

} // namespace

std::optional<MentionQuery> mentionQuery(const QString &text, qsizetype caret)
{
    const QString before = text.left(std::max<qsizetype>(caret, 0));
    const qsizetype start = before.lastIndexOf(u'@');
    if (start < 0 || (start > 0 && !before[start - 1].isSpace()))
        return std::nullopt;
    const QString words = before.mid(start + 1);
    return isQuery(words) ? std::optional(MentionQuery{start, words}) : std::nullopt;
}
