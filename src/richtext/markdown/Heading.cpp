#include "richtext/markdown/Heading.h"

#include "richtext/ADFNodes.h"
#include "richtext/markdown/InlineNodes.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype deepestLevel = 6;

/// The number of "#" characters at the start; counting stops one beyond the deepest level.
qsizetype leadingHashes(QStringView line)
{
    qsizetype count = 0;
    while (count < line.size() && count <= deepestLevel && line[count] == u'#')
        ++count;
    return count;
}

} // namespace

bool Markdown::Heading::begins(const Line &line)
{
    const qsizetype level = leadingHashes(line.trimmed);
    return level >= 1 && level <= deepestLevel && line.trimmed.sliced(level).startsWith(u' ');
}

void Markdown::Heading::read(LineCursor &lines, const BlockContext &, QList<ADFNode> &blocks)
{
    const QStringView line = lines.take().trimmed;
    const qsizetype level = leadingHashes(line);
    ADFNode heading = ADF::container(u"heading"_s, inlineNodes(line.sliced(level).trimmed()));
    heading.attrs = ADFAttributes{{u"level"_s, int(level)}};
    blocks.append(std::move(heading));
}
