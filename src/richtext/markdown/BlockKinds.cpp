#include "richtext/markdown/BlockKinds.h"

#include "richtext/markdown/BlankLine.h"
#include "richtext/markdown/CodeFence.h"
#include "richtext/markdown/Heading.h"
#include "richtext/markdown/List.h"
#include "richtext/markdown/Paragraph.h"
#include "richtext/markdown/Quote.h"
#include "richtext/markdown/Rule.h"

#include <algorithm>
#include <array>

namespace Markdown {

namespace {

/// A kind of block: the test whether a line starts it, and the function that reads it.
struct BlockKind
{
    bool (*begins)(const Line &line);
    void (*read)(LineCursor &lines, const BlockContext &context, QList<ADFNode> &blocks);
};

/// In order of precedence, which is part of the grammar: "- - -" is a list, "---" is a rule.
constexpr std::array kinds{
    BlockKind{CodeFence::begins, CodeFence::read}, BlockKind{BlankLine::begins, BlankLine::read},
    BlockKind{Heading::begins, Heading::read},     BlockKind{Rule::begins, Rule::read},
    BlockKind{Quote::begins, Quote::read},         BlockKind{List::begins, List::read},
};

} // namespace

bool beginsBlock(const Line &line)
{
    return std::ranges::any_of(kinds, [&](const BlockKind &kind) { return kind.begins(line); });
}

QList<ADFNode> parseBlocks(std::span<const QStringView> lines, const BlockContext &context)
{
    LineCursor cursor(lines);
    QList<ADFNode> blocks;
    while (!cursor.atEnd()) {
        const auto kind = std::ranges::find_if(
            kinds, [&](const BlockKind &each) { return each.begins(cursor.line()); });
        const auto read = kind == kinds.end() ? Paragraph::read : kind->read;
        read(cursor, context, blocks);
    }
    return blocks;
}

} // namespace Markdown
