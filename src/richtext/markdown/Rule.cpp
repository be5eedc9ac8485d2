#include "richtext/markdown/Rule.h"

#include "richtext/ADFNodes.h"

bool Markdown::Rule::begins(const Line &line)
{
    return line.trimmed == u"---" || line.trimmed == u"***" || line.trimmed == u"___";
}

QList<ADFNode> Markdown::Rule::read(LineCursor &lines, const BlockContext &)
{
    lines.take();
    return {ADF::plain(u"rule")};
}
