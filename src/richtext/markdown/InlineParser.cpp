#include "richtext/markdown/InlineParser.h"

#include "richtext/markdown/LineGuard.h"
#include "richtext/markdown/RunCollector.h"

#include <md4c.h>

namespace {

using Markdown::RunCollector;

RunCollector &collector(void *data)
{
    return *static_cast<RunCollector *>(data);
}

int ignoreBlock(MD_BLOCKTYPE, void *, void *)
{
    return 0;
}

int enterSpan(MD_SPANTYPE type, void *detail, void *data)
{
    collector(data).enter(type, detail);
    return 0;
}

int leaveSpan(MD_SPANTYPE type, void *, void *data)
{
    collector(data).leave(type);
    return 0;
}

int addText(MD_TEXTTYPE type, const MD_CHAR *text, MD_SIZE size, void *data)
{
    collector(data).add(type, QByteArrayView(text, qsizetype(size)));
    return 0;
}

/// `LineGuard` already keeps the parser from recognising blocks; the flags also turn off the kinds that could change a
/// paragraph.
constexpr MD_PARSER inlineRules{
    .abi_version = 0,
    .flags = MD_FLAG_STRIKETHROUGH | MD_FLAG_NOINDENTEDCODEBLOCKS | MD_FLAG_NOHTMLBLOCKS,
    .enter_block = ignoreBlock,
    .leave_block = ignoreBlock,
    .enter_span = enterSpan,
    .leave_span = leaveSpan,
    .text = addText,
    .debug_log = nullptr,
    .syntax = nullptr,
};

} // namespace

QList<Markdown::InlineRun> Markdown::inlineRuns(QStringView line)
{
    if (line.isEmpty())
        return {};
    const QByteArray guarded = LineGuard::guarded(line);
    RunCollector runs;
    if (md_parse(guarded.constData(), MD_SIZE(guarded.size()), &inlineRules, &runs) != 0)
        return {InlineRun{line.toString(), {}}};
    return std::move(runs).runs();
}
