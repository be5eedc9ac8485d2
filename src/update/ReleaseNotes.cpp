#include "update/ReleaseNotes.h"

#include "richtext/ADFMarkdown.h"
#include "richtext/ADFQueries.h"

#include <QTextBoundaryFinder>

namespace {

constexpr int MostCharacters = 600;

/// Counts characters as users see them, so that none is cut in two.
QString firstCharacters(const QString &text, int count)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (count > 0 && finder.toNextBoundary() != -1)
        --count;
    return count > 0 || finder.position() < 0 ? text : text.first(finder.position());
}

} // namespace

std::optional<QString> ReleaseNotes::plain(const std::optional<QString> &notes)
{
    const QString trimmed = notes.value_or(QString()).trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    QString text;
    for (const ADFNode &node : ADFMarkdown::inlineNodes(trimmed))
        text += ADF::plainText(node);
    return firstCharacters(text, MostCharacters);
}
