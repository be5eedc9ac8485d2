#include "screens/documents/content/BlockBuilder.h"

#include "richtext/ADFQueries.h"
#include "screens/documents/content/TextParts.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace BlockMetrics;

namespace {

std::optional<qint64> integer(const ADFNode &node, const QString &name)
{
    return node.attrs ? node.attrs->value(name).integer() : std::nullopt;
}

bool isExpand(const QString &type)
{
    return type == u"expand" || type == u"nestedExpand";
}

bool isTaskList(const QString &type)
{
    return type == u"taskList" || type == u"decisionList";
}

TextBlock::Role headingRole(const ADFNode &node)
{
    switch (integer(node, u"level"_s).value_or(2)) {
    case 1:
        return TextBlock::Role::Heading1;
    case 2:
        return TextBlock::Role::Heading2;
    default:
        return TextBlock::Role::Heading3;
    }
}

int longestLine(const QString &text)
{
    qsizetype longest = 0;
    for (const auto line : QStringView(text).split(u'\n'))
        longest = std::max(longest, line.size() + 3 * line.count(u'\t'));
    return int(longest);
}

} // namespace

void BlockBuilder::build(const ADFNode &document)
{
    m_blocks.flows.emplace_back();
    if (document.content)
        addChildren(document, m_options.spacing, {});
    else
        addOther(document, {});
    flow().below = m_gap;
}

/// Puts the blocks of nodes below each other. A node without any block takes no space.
template <typename Each>
void BlockBuilder::stack(const QList<ADFNode> &nodes, double spacing, const Each &each)
{
    bool isFirst = true;
    for (const auto &node : nodes) {
        const double gap = m_gap;
        const auto before = flow().pieces.size();
        if (!isFirst)
            m_gap += spacing;
        each(node);
        if (flow().pieces.size() == before)
            m_gap = gap;
        else
            isFirst = false;
    }
}

void BlockBuilder::addChildren(const ADFNode &node, double spacing, const Surroundings &around)
{
    stack(childrenOf(node), spacing, [&](const ADFNode &child) { addBlock(child, around); });
}

void BlockBuilder::addBlock(const ADFNode &node, const Surroundings &around)
{
    if (!addText(node, around) && !addContainer(node, around))
        addOther(node, around);
}

bool BlockBuilder::addText(const ADFNode &node, const Surroundings &around)
{
    const bool isHeading = node.type == u"heading";
    if (node.type == u"codeBlock")
        addCode(node, around);
    else if (node.type == u"rule")
        addPiece({.kind = Piece::Kind::Rule}, around);
    else if (isHeading || node.type == u"paragraph")
        addParagraph({.role = isHeading ? headingRole(node) : around.role,
                      .runs = ADFInline::attributed(childrenOf(node), m_options.context)},
                     around);
    else
        return false;
    return true;
}

bool BlockBuilder::addContainer(const ADFNode &node, const Surroundings &around)
{
    if (node.type == u"bulletList" || node.type == u"orderedList")
        addList(node, around);
    else if (isTaskList(node.type))
        addTasks(node, around);
    else if (node.type == u"blockquote")
        addQuote(node, around);
    else if (node.type == u"panel")
        addPanel(node, around);
    else if (node.type == u"table")
        addTable(node, around);
    else if (isExpand(node.type))
        addExpand(node, around);
    else
        return false;
    return true;
}

void BlockBuilder::addOther(const ADFNode &node, const Surroundings &around)
{
    if (node.type == u"media" || node.type == u"mediaSingle" || node.type == u"mediaGroup") {
        m_blocks.media.push_back({node});
        addPiece({.kind = Piece::Kind::Media, .index = int(m_blocks.media.size()) - 1}, around);
    } else if (node.content) {
        addChildren(node, containerSpacing, around);
    } else if (auto runs = ADFInline::piece(node, m_options.context); !runs.isEmpty()) {
        addParagraph({.role = around.role, .runs = std::move(runs)}, around);
    }
}

void BlockBuilder::addParagraph(TextBlock text, const Surroundings &around)
{
    text.isSecondary = text.isSecondary || around.isSecondary;
    if (text.isHeading() && !flow().pieces.empty())
        m_gap += text.role == TextBlock::Role::Heading3 ? smallHeadingSpace : headingSpace;
    bool isFirst = true;
    for (auto &part : textParts(text.runs)) {
        text.runs = std::move(part.runs);
        text.joint = isFirst ? std::exchange(m_joint, u"\n"_s) : part.joint;
        isFirst = false;
        m_blocks.texts.push_back(text);
        addPiece({.index = int(m_blocks.texts.size()) - 1}, around);
    }
}

void BlockBuilder::addCode(const ADFNode &node, const Surroundings &around)
{
    const QString code = ADF::plainText(node);
    Frame frame{.kind = Frame::Kind::Code,
                .scroller = m_blocks.scrollers++,
                .longestLine = longestLine(code)};
    const int number = openFrame(frame, around, codePadding);
    auto inner = around.indented(codeSidePadding);
    inner.right += codeSidePadding;
    inner.frame = number;
    addParagraph({.role = TextBlock::Role::Code, .runs = {{.text = code}}}, inner);
    closeFrame(number, codePadding);
}

void BlockBuilder::addList(const ADFNode &node, const Surroundings &around)
{
    const bool isOrdered = node.type == u"orderedList";
    const qint64 start = integer(node, u"order"_s).value_or(1);
    const int list = openFrame({.kind = Frame::Kind::List, .isOrdered = isOrdered}, around);
    auto number = quint64(start);
    double width = bulletWidth * m_options.textScale;
    if (isOrdered) {
        const auto last =
            qint64(number + quint64(std::max<qsizetype>(childrenOf(node).size(), 1)) - 1);
        width = std::max(markerWidth(start, around), markerWidth(last, around));
    }
    stack(childrenOf(node), listSpacing, [&](const ADFNode &item) {
        auto inside = around;
        inside.frame = list;
        const QString marker =
            isOrdered ? QString::number(qint64(number)) + u'.' : QString(QChar(u'•'));
        // The numbers of an absurd start wrap around, as unsigned ones do without harm.
        ++number;
        const int frame = openFrame({.kind = Frame::Kind::Item, .marker = marker}, inside);
        auto inner = inside.indented(width + markerGap);
        inner.frame = frame;
        addChildren(item, listSpacing, inner);
        fillFrame(frame, inner);
        closeFrame(frame);
    });
    closeFrame(list);
}

void BlockBuilder::addTasks(const ADFNode &node, const Surroundings &around)
{
    const int list = openFrame({.kind = Frame::Kind::TaskList}, around);
    auto inside = around;
    inside.frame = list;
    stack(childrenOf(node), listSpacing, [&](const ADFNode &child) {
        if (isTaskList(child.type))
            addTasks(child, inside.indented(taskSymbol + taskGap));
        else
            addTask(child, inside);
    });
    closeFrame(list);
}

void BlockBuilder::addTask(const ADFNode &node, const Surroundings &around)
{
    const auto state = ADF::attribute(node, u"state"_s);
    const bool isDone = state == u"DONE"_s || state == u"DECIDED"_s;
    const int frame = openFrame({.kind = Frame::Kind::Task, .isDone = isDone}, around);
    auto inner = around.indented(taskSymbol + taskGap);
    inner.frame = frame;
    addParagraph({.role = around.role,
                  .runs = ADFInline::attributed(childrenOf(node), m_options.context),
                  .isSecondary = isDone,
                  .isStruck = isDone},
                 inner);
    closeFrame(frame);
}

void BlockBuilder::addQuote(const ADFNode &node, const Surroundings &around)
{
    const int frame = openFrame({.kind = Frame::Kind::Quote}, around);
    auto inner = around.indented(quoteBar + quoteGap);
    inner.isSecondary = true;
    inner.frame = frame;
    addChildren(node, containerSpacing, inner);
    fillFrame(frame, inner);
    closeFrame(frame);
}

void BlockBuilder::addPanel(const ADFNode &node, const Surroundings &around)
{
    const int frame = openFrame(
        {.kind = Frame::Kind::Panel, .panel = PanelStyle::of(ADF::attribute(node, u"panelType"_s))},
        around, panelPadding);
    auto inner = around.indented(panelSidePadding + panelIcon + panelGap);
    inner.right += panelSidePadding;
    inner.frame = frame;
    addChildren(node, containerSpacing, inner);
    fillFrame(frame, inner);
    closeFrame(frame, panelPadding);
}

void BlockBuilder::addExpand(const ADFNode &node, const Surroundings &around)
{
    const int number = int(m_blocks.expands.size());
    const ExpandKey key{number, ADF::attribute(node, u"title"_s).value_or(u"Détails"_s)};
    const bool isOpen = m_options.open.contains(key);
    m_blocks.expands.push_back({key, isOpen});
    const int frame = openFrame({.kind = Frame::Kind::Expand, .index = number}, around);
    auto inner = around.indented(expandIndent);
    inner.frame = frame;
    m_blocks.texts.push_back({.role = TextBlock::Role::Title,
                              .runs = {{.text = key.title}},
                              .isSecondary = around.isSecondary,
                              .joint = std::exchange(m_joint, u"\n"_s)});
    addPiece({.kind = Piece::Kind::ExpandHeader, .index = int(m_blocks.texts.size()) - 1}, inner);
    if (isOpen) {
        const double gap = std::exchange(m_gap, containerSpacing);
        const auto before = flow().pieces.size();
        addChildren(node, containerSpacing, inner);
        if (flow().pieces.size() == before)
            m_gap = gap;
    } else {
        for (const auto &child : childrenOf(node))
            countExpands(child);
    }
    closeFrame(frame);
}

/// The expands inside a closed one have numbers too, so that opening one does not renumber those below it.
void BlockBuilder::countExpands(const ADFNode &node)
{
    if (isExpand(node.type))
        m_blocks.expands.push_back({});
    for (const auto &child : childrenOf(node))
        countExpands(child);
}

int BlockBuilder::openFrame(Frame frame, const Surroundings &around, double padding)
{
    auto &frames = flow().frames;
    frame.parent = around.frame;
    frame.left = around.left;
    frame.right = around.right;
    frame.first = int(flow().pieces.size());
    // Until its first piece is known, the distance of the frame from the piece above.
    frame.above = m_gap;
    frames.push_back(std::move(frame));
    m_gap += padding;
    return int(frames.size()) - 1;
}

void BlockBuilder::closeFrame(int number, double padding)
{
    auto &frames = flow().frames;
    auto &frame = frames[size_t(number)];
    frame.end = int(flow().pieces.size());
    if (frame.end == frame.first) {
        m_gap = frame.above;
        frames.resize(size_t(number));
        return;
    }
    m_gap += padding;
    frame.above = flow().pieces[size_t(frame.first)].gap - frame.above;
    frame.below = m_gap;
}

void BlockBuilder::fillFrame(int number, const Surroundings &around)
{
    if (int(flow().pieces.size()) == flow().frames[size_t(number)].first)
        addParagraph({.role = around.role}, around);
}

void BlockBuilder::addPiece(Piece piece, const Surroundings &around)
{
    const bool hasText = piece.kind == Piece::Kind::Text || piece.kind == Piece::Kind::ExpandHeader;
    if (hasText) {
        auto &text = m_blocks.texts[size_t(piece.index)];
        text.flow = m_flow;
        text.piece = int(flow().pieces.size());
    }
    piece.frame = around.frame;
    piece.left = around.left;
    piece.right = around.right;
    piece.gap = std::exchange(m_gap, 0);
    if (piece.kind == Piece::Kind::Rule) {
        piece.gap += rulePadding;
        m_gap = rulePadding;
    }
    flow().pieces.push_back(piece);
}

/// The width of a number and "." in digits of equal width, which are 0.65 of the font size wide.
double BlockBuilder::markerWidth(qint64 number, const Surroundings &around) const
{
    constexpr double digit = 0.65;
    constexpr double dot = 0.3;
    const double size = around.role == TextBlock::Role::Body ? m_options.fontSize : 12;
    const auto digits = QString::number(number).size();
    const double scale = m_options.textScale;
    return std::max(numberWidth, std::ceil((double(digits) * digit + dot) * size * scale));
}
