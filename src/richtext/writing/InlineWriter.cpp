#include "richtext/writing/InlineWriter.h"

#include "richtext/ADFDates.h"
#include "richtext/ADFNodes.h"
#include "richtext/ADFQueries.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct MarkSign
{
    QStringView mark;
    QStringView sign;
};

/// Innermost first.
constexpr std::array markSigns{MarkSign{u"code", u"`"}, MarkSign{u"strong", u"**"},
                               MarkSign{u"em", u"*"}, MarkSign{u"strike", u"~~"}};

std::optional<QString> linkTarget(const ADFNode &node)
{
    if (!node.marks)
        return std::nullopt;
    const auto link = std::ranges::find(*node.marks, u"link"_s, &ADFMark::type);
    const bool hasAttributes = link != node.marks->cend() && link->attrs;
    return hasAttributes ? link->attrs->value(u"href"_s).string() : std::nullopt;
}

QString attributeText(const ADFNode &node, const QString &name)
{
    return ADF::attribute(node, name).value_or(QString());
}

/// The text that stands for a node without children; nothing for the other kinds.
std::optional<QString> replacement(const ADFNode &node, const UserCalendar &calendar)
{
    if (node.type == u"hardBreak")
        return u"\n"_s;
    if (node.type == u"mention")
        return ADF::attribute(node, u"text"_s).value_or(u"@"_s);
    if (node.type == u"emoji")
        return ADF::attribute(node, u"text"_s).value_or(attributeText(node, u"shortName"_s));
    if (node.type == u"inlineCard")
        return attributeText(node, u"url"_s);
    if (node.type == u"status")
        return u'[' + attributeText(node, u"text"_s) + u']';
    if (node.type == u"date")
        return ADF::dateText(node, calendar);
    return std::nullopt;
}

} // namespace

void InlineWriter::write(const QList<ADFNode> &nodes)
{
    for (const ADFNode &node : nodes)
        write(node);
}

void InlineWriter::write(const ADFNode &node)
{
    if (node.type == u"text")
        writeText(node);
    else if (const auto text = replacement(node, m_calendar))
        m_text.append(*text);
    else
        write(ADF::children(node));
}

void InlineWriter::writeText(const ADFNode &node)
{
    const auto isMarked = [&](const MarkSign &each) { return ADF::hasMark(node, each.mark); };
    const std::optional<QString> target = linkTarget(node);
    if (target)
        m_text.append(u"[");
    for (auto each = markSigns.crbegin(); each != markSigns.crend(); ++each) {
        if (isMarked(*each))
            m_text.append(each->sign);
    }
    m_text.append(node.text.value_or(QString()));
    for (const MarkSign &each : markSigns) {
        if (isMarked(each))
            m_text.append(each.sign);
    }
    if (target)
        m_text.append(u"]("_s + *target + u')');
}
