#include "richtext/markdown/Rule.h"

#include "richtext/ADFNodes.h"

using namespace Qt::StringLiterals;

bool Markdown::Rule::begins(const Line &line)
{
    return line.trimmed == u"---" || line.trimmed == u"***" || line.trimmed == u"___";
}

void Markdown::Rule::read(LineCursor &lines, const BlockContext &, QList<ADFNode> &blocks)
{
    lines.take();
    blocks.append(ADF::plain(u"rule"_s));
}
