#include "richtext/losses/LossCounter.h"

#include "richtext/ADFMentions.h"
#include "richtext/ADFNodes.h"
#include "richtext/ADFQueries.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct LossOfType
{
    QStringView type;
    MarkdownLoss loss;
};

constexpr std::array lossyKinds{
    LossOfType{u"table", MarkdownLoss::Table},
    LossOfType{u"panel", MarkdownLoss::Panel},
    LossOfType{u"expand", MarkdownLoss::Expand},
    LossOfType{u"nestedExpand", MarkdownLoss::Expand},
    LossOfType{u"layoutSection", MarkdownLoss::Layout},
    LossOfType{u"status", MarkdownLoss::Status},
    LossOfType{u"date", MarkdownLoss::Date},
    LossOfType{u"inlineCard", MarkdownLoss::Card},
    LossOfType{u"blockCard", MarkdownLoss::Card},
    LossOfType{u"embedCard", MarkdownLoss::Card},
    LossOfType{u"emoji", MarkdownLoss::Emoji},
    LossOfType{u"caption", MarkdownLoss::Caption},
    LossOfType{u"mediaInline", MarkdownLoss::File},
    LossOfType{u"decisionItem", MarkdownLoss::Decision},
    LossOfType{u"extension", MarkdownLoss::Extension},
    LossOfType{u"inlineExtension", MarkdownLoss::Extension},
    LossOfType{u"bodiedExtension", MarkdownLoss::Extension},
};

constexpr std::array lossyQuotedKinds{
    LossOfType{u"heading", MarkdownLoss::QuotedHeading},
    LossOfType{u"rule", MarkdownLoss::QuotedRule},
    LossOfType{u"taskList", MarkdownLoss::QuotedTasks},
    LossOfType{u"blockquote", MarkdownLoss::QuotedQuote},
};

constexpr std::array lossyMarks{
    LossOfType{u"underline", MarkdownLoss::Underline},
    LossOfType{u"textColor", MarkdownLoss::Colour},
    LossOfType{u"backgroundColor", MarkdownLoss::Colour},
    LossOfType{u"subsup", MarkdownLoss::Script},
    LossOfType{u"annotation", MarkdownLoss::OtherStyle},
    LossOfType{u"alignment", MarkdownLoss::OtherStyle},
    LossOfType{u"indentation", MarkdownLoss::OtherStyle},
};

/// The kinds whose own node is no loss, wherever it stands.
constexpr std::array harmlessKinds{
    QStringView(u"doc"),         QStringView(u"paragraph"),    QStringView(u"heading"),
    QStringView(u"bulletList"),  QStringView(u"orderedList"),  QStringView(u"listItem"),
    QStringView(u"taskList"),    QStringView(u"taskItem"),     QStringView(u"codeBlock"),
    QStringView(u"blockquote"),  QStringView(u"rule"),         QStringView(u"text"),
    QStringView(u"hardBreak"),   QStringView(u"tableRow"),     QStringView(u"tableCell"),
    QStringView(u"tableHeader"), QStringView(u"layoutColumn"), QStringView(u"decisionList"),
};

template <typename Kinds>
std::optional<MarkdownLoss> lossOf(const Kinds &kinds, QStringView type)
{
    const auto found = std::ranges::find(kinds, type, &LossOfType::type);
    return found != kinds.end() ? std::optional(found->loss) : std::nullopt;
}

bool isHarmless(const ADFNode &node)
{
    return std::ranges::find(harmlessKinds, QStringView(node.type)) != harmlessKinds.end();
}

bool isList(const ADFNode &node)
{
    return node.type == u"bulletList" || node.type == u"orderedList";
}

bool isMedia(const ADFNode &node)
{
    return node.type == u"mediaSingle" || node.type == u"mediaGroup" || node.type == u"media";
}

bool isStyledCode(const ADFNode &node)
{
    return ADF::hasMark(node, u"code") &&
           (ADF::hasMark(node, u"strong") || ADF::hasMark(node, u"em") ||
            ADF::hasMark(node, u"strike"));
}

/// True if the paragraph has a line break before its last text. The lines after it are not read as a part of an item.
bool hasInnerBreak(const ADFNode &paragraph)
{
    const QString text = ADF::plainText(paragraph);
    return QStringView(text).trimmed().contains(u'\n');
}

/// The reader of quotes removes the blank after the marker of an item without text, which is then no marker.
bool isBlank(const ADFNode &paragraph)
{
    return ADF::plainText(paragraph).trimmed().isEmpty();
}

} // namespace

void LossCounter::visit(const ADFNode &document)
{
    visitNode(document, {});
}

void LossCounter::visitNode(const ADFNode &node, Place place)
{
    countKind(node, place);
    if (place.inQuote && !place.inTable)
        countQuoted(node);
    if (isMedia(node))
        return countMedia(node);
    if (node.type == u"orderedList" && !place.inTable)
        countNumbers(node);
    if (node.type == u"listItem")
        return visitItem(node, place);
    if (!place.inTable)
        countText(node, place);
    if (node.type == u"blockquote")
        place = {.inQuote = true, .inTable = place.inTable};
    if (node.type == u"table")
        place.inTable = true;
    if (node.type == u"taskList")
        place.text = TextPlace::Task;
    visitChildren(node, place);
}

void LossCounter::visitChildren(const ADFNode &node, Place place)
{
    const ADFNode *previous = nullptr;
    for (const ADFNode &child : ADF::children(node)) {
        countStyles(child, previous);
        visitNode(child, place);
        previous = &child;
    }
}

void LossCounter::visitItem(const ADFNode &item, Place place)
{
    const ADFNode *previous = nullptr;
    for (const ADFNode &child : ADF::children(item)) {
        const bool isFirst = previous == nullptr;
        const bool hasMarker = isFirst && child.type == u"paragraph";
        const bool merges = previous && isList(child) && previous->type == child.type;
        const bool isLost = isFirst || child.type == u"paragraph" || child.type == u"heading" ||
                            child.type == u"codeBlock" || child.type == u"blockquote" ||
                            child.type == u"rule" || merges;
        const bool isCounted = isMedia(child) || lossOf(lossyKinds, child.type);
        if (!place.inTable && !hasMarker && isLost && !isCounted)
            m_losses.add(MarkdownLoss::ItemBlock);
        if (!place.inTable && child.type == u"taskList")
            m_losses.add(MarkdownLoss::ItemTasks);
        countStyles(child, nullptr);
        Place inside = place;
        inside.text = hasMarker ? TextPlace::Item : TextPlace::Page;
        visitNode(child, inside);
        previous = &child;
    }
}

void LossCounter::countKind(const ADFNode &node, Place place)
{
    if (node.type == u"mention") {
        if (!isRestored(node))
            m_losses.add(MarkdownLoss::Mention);
    } else if (const auto loss = lossOf(lossyKinds, node.type)) {
        m_losses.add(*loss);
    } else if (node.type == u"taskList" && place.text == TextPlace::Task) {
        m_losses.add(MarkdownLoss::ItemTasks);
    } else if (!isMedia(node) && !isHarmless(node)) {
        m_losses.add(MarkdownLoss::Other);
    }
}

/// A picture stands by itself; the files of a group are counted one by one.
void LossCounter::countMedia(const ADFNode &node)
{
    const QList<ADFNode> &children = ADF::children(node);
    const auto files = int(std::ranges::count(children, u"media"_s, &ADFNode::type));
    m_losses.add(node.type == u"mediaSingle" ? MarkdownLoss::Picture : MarkdownLoss::File,
                 std::max(files, 1));
    for (const ADFNode &child : children) {
        if (child.type != u"media")
            visitNode(child, {.inTable = true});
    }
}

void LossCounter::countQuoted(const ADFNode &node)
{
    if (const auto loss = lossOf(lossyQuotedKinds, node.type))
        m_losses.add(*loss);
}

/// The reader accepts numbers of at most three digits.
void LossCounter::countNumbers(const ADFNode &list)
{
    const qint64 start =
        list.attrs.value_or(ADFAttributes()).value(u"order"_s).integer().value_or(1);
    if (start < 0 || start > 1000 - ADF::children(list).size())
        m_losses.add(MarkdownLoss::Misread);
}

/// Texts of one style that follow each other count once.
void LossCounter::countStyles(const ADFNode &node, const ADFNode *previous)
{
    for (const ADFMark &mark : node.marks.value_or(QList<ADFMark>())) {
        const auto loss = lossOf(lossyMarks, mark.type);
        if (loss && !(previous && ADF::hasMark(*previous, mark.type)))
            m_losses.add(*loss);
    }
    if (isStyledCode(node) && !(previous && isStyledCode(*previous)))
        m_losses.add(MarkdownLoss::StyledCode);
}

void LossCounter::countText(const ADFNode &block, Place place)
{
    const bool isTask = block.type == u"taskItem";
    if (block.type != u"paragraph" && block.type != u"heading" && block.type != u"codeBlock" &&
        !isTask)
        return;
    const TextPlace text = isTask ? TextPlace::Task
                           : block.type == u"paragraph" && place.text == TextPlace::Item
                               ? TextPlace::Item
                               : TextPlace::Page;
    if (text == TextPlace::Item && hasInnerBreak(block))
        m_losses.add(MarkdownLoss::ItemBlock);
    else if ((text == TextPlace::Item && place.inQuote && isBlank(block)) ||
             !readsBack(block, text))
        m_losses.add(MarkdownLoss::Misread);
}

/// Asks the function that restores mentions, so that both always agree.
bool LossCounter::isRestored(const ADFNode &mention) const
{
    const QString text = ADF::attribute(mention, u"text"_s).value_or(u"@"_s);
    const ADFNode linked =
        ADF::linkingMentions(ADF::container(u"paragraph", {ADF::text(text)}), m_users);
    const QList<ADFNode> &nodes = *linked.content;
    return nodes.size() == 1 && nodes.first().type == u"mention" &&
           ADF::attribute(nodes.first(), u"id"_s) == ADF::attribute(mention, u"id"_s);
}
