#include "richtext/markdown/BlankLine.h"

bool Markdown::BlankLine::begins(const Line &line)
{
    return line.trimmed.isEmpty();
}

QList<ADFNode> Markdown::BlankLine::read(LineCursor &lines, const BlockContext &)
{
    lines.take();
    return {};
}
