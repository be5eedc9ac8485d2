#include "richtext/markdown/List.h"

#include "richtext/ADFNodes.h"
#include "richtext/markdown/InlineNodes.h"
#include "richtext/markdown/ListLine.h"
#include "richtext/markdown/TaskList.h"

using namespace Qt::StringLiterals;

namespace Markdown {

namespace {

using ListLines = std::span<const ListLine>;

/// List items have no check boxes, so the check box of a nested task is written as text.
ADFNode listItem(const ListLine &line)
{
    const QString box = line.checked ? u"☑ "_s : u"☐ "_s;
    QList<ADFNode> nodes =
        line.isTask ? inlineNodes(box + line.text.toString()) : inlineNodes(line.text);
    ADFNode item = ADF::container(u"listItem"_s, {});
    item.content->append(ADF::container(u"paragraph"_s, std::move(nodes)));
    return item;
}

ADFNode emptyList(const ListLine &first)
{
    ADFNode list = ADF::container(first.ordered ? u"orderedList"_s : u"bulletList"_s, {});
    if (first.ordered && first.number != 1)
        list.attrs = ADFAttributes{{u"order"_s, first.number}};
    return list;
}

/// Builds the list at the start of `lines`, including nested lists, and removes its lines from `lines`. The list ends
/// at a line with a smaller indent, and at a line with the same indent but another kind of marker.
ADFNode buildList(ListLines &lines, int depth)
{
    const ListLine &first = lines.front();
    ADFNode list = emptyList(first);
    while (!lines.empty() && lines.front().indent >= first.indent) {
        const ListLine &line = lines.front();
        if (line.indent > first.indent && depth < ADFMarkdown::maximumListDepth) {
            list.content->last().content->append(buildList(lines, depth + 1));
            continue;
        }
        if (line.ordered != first.ordered)
            break;
        list.content->append(listItem(line));
        lines = lines.subspan(1);
    }
    return list;
}

} // namespace

bool List::begins(const Line &line)
{
    return parseListLine(line.whole).has_value();
}

void List::read(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks)
{
    std::vector<ListLine> taken;
    while (!lines.atEnd()) {
        const auto line = parseListLine(lines.line().whole);
        if (!line)
            break;
        taken.push_back(*line);
        lines.take();
    }
    for (ListLines rest(taken); !rest.empty();)
        blocks.append(rest.front().beginsTaskList() ? TaskList::build(rest, context)
                                                    : buildList(rest, 1));
}

} // namespace Markdown
