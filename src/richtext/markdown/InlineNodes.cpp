#include "richtext/markdown/InlineNodes.h"

#include "richtext/ADFNodes.h"
#include "richtext/markdown/InlineParser.h"

using namespace Qt::StringLiterals;

namespace Markdown {

namespace {

ADFMark mark(const QString &type)
{
    return ADFMark{type, std::nullopt};
}

/// The marks of a run of text, in the order used in documents. Code is never also bold, italic or struck through.
QList<ADFMark> marksOf(const InlineStyle &style)
{
    QList<ADFMark> marks;
    if (style.code)
        marks.append(mark(u"code"_s));
    if (style.strong && !style.code)
        marks.append(mark(u"strong"_s));
    if (style.emphasized && !style.code)
        marks.append(mark(u"em"_s));
    if (style.struckThrough && !style.code)
        marks.append(mark(u"strike"_s));
    if (!style.link.isEmpty())
        marks.append(ADFMark{u"link"_s, ADFAttributes{{u"href"_s, style.link}}});
    return marks;
}

void appendLine(QStringView line, QList<ADFNode> &nodes)
{
    QList<InlineRun> runs = inlineRuns(line);
    // Only for the first line: asking for the space of each line in turn would move the nodes each time.
    if (nodes.isEmpty())
        nodes.reserve(runs.size());
    for (InlineRun &run : runs)
        nodes.append(ADF::text(std::move(run.text), marksOf(run.style)));
}

} // namespace

QList<ADFNode> inlineNodes(std::span<const QStringView> lines)
{
    QList<ADFNode> nodes;
    bool first = true;
    for (const QStringView line : lines) {
        if (!first)
            nodes.append(ADF::plain(u"hardBreak"_s));
        appendLine(line, nodes);
        first = false;
    }
    return nodes;
}

QList<ADFNode> inlineNodes(QStringView line)
{
    return inlineNodes(std::span(&line, 1));
}

} // namespace Markdown
