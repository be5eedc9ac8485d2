#include "richtext/markdown/Paragraph.h"

#include "richtext/ADFNodes.h"
#include "richtext/markdown/BlockKinds.h"
#include "richtext/markdown/InlineNodes.h"

using namespace Qt::StringLiterals;

void Markdown::Paragraph::read(LineCursor &lines, const BlockContext &, QList<ADFNode> &blocks)
{
    std::vector<QStringView> taken;
    do
        taken.push_back(lines.take().whole);
    while (!lines.atEnd() && !beginsBlock(lines.line()));
    blocks.append(ADF::container(u"paragraph"_s, inlineNodes(taken)));
}
