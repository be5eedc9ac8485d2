#include "richtext/markdown/Paragraph.h"

#include "richtext/ADFNodes.h"
#include "richtext/markdown/BlockKinds.h"
#include "richtext/markdown/InlineNodes.h"

QList<ADFNode> Markdown::Paragraph::read(LineCursor &lines, const BlockContext &)
{
    std::vector<QStringView> taken;
    do
        taken.push_back(lines.take().whole);
    while (!lines.atEnd() && !beginsBlock(lines.line()));
    return {ADF::container(u"paragraph", inlineNodes(taken))};
}
