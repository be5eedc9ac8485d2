#include "model/OneLineText.h"

#include <algorithm>

namespace {

bool breaksLine(QChar character)
{
    const auto category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

} // namespace

QString oneLine(const QString &text)
{
    if (std::ranges::none_of(text, breaksLine))
        return text;
    QString line;
    line.reserve(text.size());
    bool isBroken = false;
    for (const QChar character : text) {
        if (breaksLine(character)) {
            isBroken = true;
            continue;
        }
        if (isBroken && !line.isEmpty())
            line += u' ';
        isBroken = false;
        line += character;
    }
    return line;
}

Issue withOneLineTexts(const Issue &issue)
{
    Issue shown = issue;
    shown.summary = oneLine(issue.summary);
    if (shown.parent)
        shown.parent->summary = oneLine(shown.parent->summary);
    if (shown.assignee)
        shown.assignee->name = oneLine(shown.assignee->name);
    return shown;
}
