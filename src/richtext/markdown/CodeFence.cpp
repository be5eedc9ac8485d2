#include "richtext/markdown/CodeFence.h"

#include "richtext/ADFNodes.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView fence = u"```";

/// The lines up to the closing fence. The fence is consumed too.
QString verbatim(Markdown::LineCursor &lines)
{
    QString code;
    bool first = true;
    while (!lines.atEnd()) {
        const Markdown::Line line = lines.take();
        if (line.trimmed.startsWith(fence))
            break;
        if (!first)
            code += u'\n';
        code += line.whole;
        first = false;
    }
    return code;
}

} // namespace

bool Markdown::CodeFence::begins(const Line &line)
{
    return line.trimmed.startsWith(fence);
}

void Markdown::CodeFence::read(LineCursor &lines, const BlockContext &, QList<ADFNode> &blocks)
{
    const QString language = lines.take().trimmed.sliced(fence.size()).trimmed().toString();
    const QString code = verbatim(lines);
    ADFNode block = ADF::container(u"codeBlock"_s, {});
    if (!code.isEmpty())
        block.content->append(ADF::text(code));
    if (!language.isEmpty())
        block.attrs = ADFAttributes{{u"language"_s, language}};
    blocks.append(std::move(block));
}
