#include "richtext/markdown/InlineParser.h"

#include "richtext/markdown/LineArena.h"
#include "richtext/markdown/LineGuard.h"
#include "richtext/markdown/RunCollector.h"

#include <QMutex>

#include <algorithm>
#include <array>
#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>

namespace {

using Markdown::LineArena;
using Markdown::LineGuard;

cmark_syntax_extension *strikethrough()
{
    static cmark_syntax_extension *const extension = [] {
        cmark_gfm_core_extensions_ensure_registered();
        return cmark_find_syntax_extension("strikethrough");
    }();
    return extension;
}

/// The document, which is freed with the arena.
cmark_node *parsed(const LineArena &arena, const LineGuard &line)
{
    // A single "~" is no markup.
    cmark_parser *const parser =
        cmark_parser_new_with_mem(CMARK_OPT_STRIKETHROUGH_DOUBLE_TILDE, arena.functions());
    cmark_parser_attach_syntax_extension(parser, strikethrough());
    for (const QByteArrayView part :
         {LineGuard::edgeUTF8, QByteArrayView(line.encoded()), LineGuard::edgeUTF8})
        cmark_parser_feed(parser, part.constData(), std::size_t(part.size()));
    return cmark_parser_finish(parser);
}

/// For each ASCII character, whether it begins markup or is replaced.
constexpr std::array<bool, 128> beginnings = [] {
    std::array<bool, 128> result{};
    // The zero at the end of the text is one of them.
    for (const char character : "*_~`[<&\\")
        result[uchar(character)] = true;
    return result;
}();

/// True if the result may differ from the line: it contains a character that begins markup or that is replaced. Most
/// lines of a text contain none, and the parser takes several times as long as this.
bool needsParser(QStringView line)
{
    return std::ranges::any_of(line, [](QChar character) {
        const char16_t unit = character.unicode();
        return unit < beginnings.size() ? beginnings[unit] : character.isSurrogate();
    });
}

} // namespace

QList<Markdown::InlineRun> Markdown::inlineRuns(QStringView line)
{
    if (line.isEmpty())
        return {};
    if (!needsParser(line))
        return {InlineRun{line.toString(), {}}};
    const auto guard = LineGuard::of(line);
    if (!guard)
        return {InlineRun{line.toString(), {}}};
    // While the library parses with an extension, the characters of the extension are global state.
    static QMutex mutex;
    const QMutexLocker locker(&mutex);
    const LineArena arena;
    cmark_iter *const nodes = cmark_iter_new(parsed(arena, *guard));
    RunCollector runs(*guard);
    for (auto event = cmark_iter_next(nodes); event != CMARK_EVENT_DONE;
         event = cmark_iter_next(nodes)) {
        cmark_node *const node = cmark_iter_get_node(nodes);
        if (event == CMARK_EVENT_ENTER)
            runs.enter(node);
        else
            runs.leave(node);
    }
    return std::move(runs).runs();
}
