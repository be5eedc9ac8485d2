#include "richtext/markdown/Quote.h"

#include "richtext/ADFNodes.h"
#include "richtext/markdown/BlockKinds.h"

using namespace Qt::StringLiterals;

namespace {

bool isAdmitted(const ADFNode &block)
{
    return block.type == u"paragraph" || block.type == u"bulletList" ||
           block.type == u"orderedList" || block.type == u"codeBlock";
}

/// The line without the ">" and the one space that may follow it.
QStringView unquoted(QStringView line)
{
    line = line.sliced(1);
    return line.startsWith(u' ') ? line.sliced(1) : line;
}

} // namespace

bool Markdown::Quote::begins(const Line &line)
{
    return line.trimmed.startsWith(u'>');
}

void Markdown::Quote::read(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks)
{
    std::vector<QStringView> inner;
    while (!lines.atEnd() && begins(lines.line()))
        inner.push_back(unquoted(lines.take().trimmed));
    if (context.insideQuote)
        return;
    QList<ADFNode> quoted = parseBlocks(inner, BlockContext{context.localID, true});
    quoted.removeIf([](const ADFNode &block) { return !isAdmitted(block); });
    if (!quoted.isEmpty())
        blocks.append(ADF::container(u"blockquote"_s, std::move(quoted)));
}
