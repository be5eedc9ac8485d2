#include "richtext/markdown/BlankLine.h"

bool Markdown::BlankLine::begins(const Line &line)
{
    return line.trimmed.isEmpty();
}

void Markdown::BlankLine::read(LineCursor &lines, const BlockContext &, QList<ADFNode> &)
{
    lines.take();
}
