#include "richtext/markdown/TaskList.h"

#include "richtext/ADFNodes.h"
#include "richtext/markdown/InlineNodes.h"

using namespace Qt::StringLiterals;

namespace {

ADFNode taskItem(const Markdown::ListLine &line, const QString &localID)
{
    ADFNode item = ADF::container(u"taskItem"_s, Markdown::inlineNodes(line.text));
    item.attrs =
        ADFAttributes{{u"localId"_s, localID}, {u"state"_s, line.checked ? u"DONE"_s : u"TODO"_s}};
    return item;
}

} // namespace

ADFNode Markdown::TaskList::build(std::span<const ListLine> &lines, const BlockContext &context)
{
    ADFNode list = ADF::container(u"taskList"_s, {});
    for (; !lines.empty() && lines.front().beginsTaskList(); lines = lines.subspan(1))
        list.content->append(taskItem(lines.front(), context.localID()));
    list.attrs = ADFAttributes{{u"localId"_s, context.localID()}};
    return list;
}
