#include "richtext/markdown/InlineParser.h"

#include "richtext/markdown/LineGuard.h"
#include "richtext/markdown/RunCollector.h"

#include <QMutex>

#include <algorithm>
#include <array>
#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>
#include <memory>

namespace {

template <auto release>
struct Release
{
    void operator()(auto *object) const { release(object); }
};
using Parser = std::unique_ptr<cmark_parser, Release<cmark_parser_free>>;
using Document = std::unique_ptr<cmark_node, Release<cmark_node_free>>;
using Iterator = std::unique_ptr<cmark_iter, Release<cmark_iter_free>>;

cmark_syntax_extension *strikethrough()
{
    static cmark_syntax_extension *const extension = [] {
        cmark_gfm_core_extensions_ensure_registered();
        return cmark_find_syntax_extension("strikethrough");
    }();
    return extension;
}

Document parsed(const QByteArray &text)
{
    // While the library parses with an extension, the characters of the extension are global state.
    static QMutex mutex;
    const QMutexLocker locker(&mutex);
    // A single "~" is no markup.
    const Parser parser(cmark_parser_new(CMARK_OPT_STRIKETHROUGH_DOUBLE_TILDE));
    cmark_parser_attach_syntax_extension(parser.get(), strikethrough());
    cmark_parser_feed(parser.get(), text.constData(), std::size_t(text.size()));
    return Document(cmark_parser_finish(parser.get()));
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
    const Document document = parsed(guard->encoded());
    const Iterator nodes(cmark_iter_new(document.get()));
    RunCollector runs(*guard);
    for (auto event = cmark_iter_next(nodes.get()); event != CMARK_EVENT_DONE;
         event = cmark_iter_next(nodes.get())) {
        cmark_node *const node = cmark_iter_get_node(nodes.get());
        if (event == CMARK_EVENT_ENTER)
            runs.enter(node);
        else
            runs.leave(node);
    }
    return std::move(runs).runs();
}
