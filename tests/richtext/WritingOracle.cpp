#include "richtext/WritingOracle.h"

#include "model/dates/DateParts.h"
#include "richtext/ADFQueries.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Nodes = QList<ADFNode>;

class Oracle
{
public:
    explicit Oracle(const UserCalendar &calendar) : m_calendar(calendar) {}

    QStringList blocks(const Nodes &nodes, const QString &indent) const
    {
        QStringList texts;
        for (const ADFNode &node : nodes)
            texts.append(block(node, indent));
        texts.removeAll(QString());
        return texts;
    }

private:
    static Nodes contentOf(const ADFNode &node) { return node.content.value_or(Nodes()); }

    static std::optional<qint64> integerOf(const ADFNode &node, const QString &name)
    {
        return node.attrs.value_or(ADFAttributes()).value(name).integer();
    }

    QString block(const ADFNode &node, const QString &indent) const
    {
        const Nodes content = contentOf(node);
        if (node.type == u"paragraph")
            return indent + inlineText(content);
        if (node.type == u"heading") {
            const qint64 level = qBound(1, integerOf(node, u"level"_s).value_or(1), 6);
            return indent + QString(level, u'#') + u' ' + inlineText(content);
        }
        if (node.type == u"bulletList" || node.type == u"orderedList")
            return list(node, indent);
        if (node.type == u"taskList")
            return tasks(content, indent);
        if (node.type == u"codeBlock")
            return indent + u"```"_s + ADF::attribute(node, u"language"_s).value_or(QString()) +
                   u'\n' + ADF::plainText(node) + u'\n' + indent + u"```"_s;
        if (node.type == u"blockquote") {
            const QString text = blocks(content, QString()).join(u"\n\n"_s);
            return prefixed(text.split(u'\n'), indent + u"> "_s).join(u'\n');
        }
        if (node.type == u"rule")
            return indent + u"---"_s;
        if (QStringList{u"mediaSingle"_s, u"mediaGroup"_s, u"media"_s}.contains(node.type))
            return indent + u"[pièce jointe]"_s;
        if (node.type == u"table")
            return table(content, indent);
        return other(node, indent);
    }

    QString other(const ADFNode &node, const QString &indent) const
    {
        if (!node.content)
            return indent + inlineText({node});
        if (ADF::isInlineContainer(node.type))
            return indent + inlineText(*node.content);
        return blocks(*node.content, indent).join(u"\n\n"_s);
    }

    QString list(const ADFNode &node, const QString &indent) const
    {
        const qint64 start = integerOf(node, u"order"_s).value_or(1);
        const bool isOrdered = node.type == u"orderedList";
        const Nodes items = contentOf(node);
        QStringList texts;
        for (qsizetype i = 0; i < items.size(); ++i) {
            const QString marker =
                isOrdered ? QString::number(numberOf(start, i)) + u". "_s : u"- "_s;
            texts.append(listItem(items[i], marker, indent));
        }
        return texts.join(u'\n');
    }

    static qint64 numberOf(qint64 start, qsizetype index)
    {
        constexpr qint64 largest = std::numeric_limits<qint64>::max();
        return start > largest - index ? largest : start + index;
    }

    QString listItem(const ADFNode &item, const QString &marker, const QString &indent) const
    {
        const Nodes content = contentOf(item);
        QStringList lines;
        for (qsizetype i = 0; i < content.size(); ++i) {
            if (i == 0 && content[i].type == u"paragraph")
                lines.append(indent + marker + inlineText(contentOf(content[i])));
            else
                lines.append(block(content[i], indent + u"  "_s));
        }
        return lines.join(u'\n');
    }

    QString tasks(const Nodes &content, const QString &indent) const
    {
        QStringList lines;
        for (const ADFNode &task : content) {
            const bool isDone = ADF::attribute(task, u"state"_s) == u"DONE"_s;
            lines.append(indent + (isDone ? u"- [x] "_s : u"- [ ] "_s) +
                         inlineText(contentOf(task)));
        }
        return lines.join(u'\n');
    }

    QString table(const Nodes &rows, const QString &indent) const
    {
        QStringList lines;
        for (const ADFNode &row : rows) {
            QStringList cells;
            for (const ADFNode &cell : contentOf(row)) {
                Nodes inlines;
                for (const ADFNode &inside : contentOf(cell))
                    inlines.append(contentOf(inside));
                cells.append(inlineText(inlines));
            }
            lines.append(u"| "_s + cells.join(u" | "_s) + u" |"_s);
        }
        if (lines.isEmpty())
            return {};
        const qsizetype columns = rows.first().content ? rows.first().content->size() : 1;
        lines.insert(1, u"|"_s + u" --- |"_s.repeated(columns));
        return prefixed(lines, indent).join(u'\n');
    }

    static QStringList prefixed(const QStringList &lines, const QString &prefix)
    {
        QStringList result;
        for (const QString &line : lines)
            result.append(prefix + line);
        return result;
    }

    QString inlineText(const Nodes &nodes) const
    {
        QString text;
        for (const ADFNode &node : nodes)
            text += inlineText(node);
        return text;
    }

    QString inlineText(const ADFNode &node) const
    {
        const auto attribute = [&](const QString &name) { return ADF::attribute(node, name); };
        if (node.type == u"text")
            return marked(node);
        if (node.type == u"hardBreak")
            return u"\n"_s;
        if (node.type == u"mention")
            return attribute(u"text"_s).value_or(u"@"_s);
        if (node.type == u"emoji" && attribute(u"text"_s))
            return *attribute(u"text"_s);
        if (node.type == u"emoji")
            return attribute(u"shortName"_s).value_or(QString());
        if (node.type == u"inlineCard")
            return attribute(u"url"_s).value_or(QString());
        if (node.type == u"status")
            return u"[%1]"_s.arg(attribute(u"text"_s).value_or(QString()));
        if (node.type == u"date")
            return date(attribute(u"timestamp"_s).value_or(QString()));
        return inlineText(contentOf(node));
    }

    static QString marked(const ADFNode &node)
    {
        QString text = node.text.value_or(QString());
        const QList<std::pair<QString, QString>> signs{
            {u"code"_s, u"`"_s}, {u"strong"_s, u"**"_s}, {u"em"_s, u"*"_s}, {u"strike"_s, u"~~"_s}};
        for (const auto &[type, sign] : signs) {
            if (mark(node, type))
                text = sign + text + sign;
        }
        if (const auto link = mark(node, u"link"_s)) {
            if (const auto href = link->attrs.value_or(ADFAttributes()).value(u"href"_s).string())
                text = u"["_s + text + u"]("_s + *href + u")"_s;
        }
        return text;
    }

    static std::optional<ADFMark> mark(const ADFNode &node, const QString &type)
    {
        for (const ADFMark &each : node.marks.value_or(QList<ADFMark>())) {
            if (each.type == type)
                return each;
        }
        return std::nullopt;
    }

    QString date(const QString &timestamp) const
    {
        bool isNumber = false;
        const double milliseconds = timestamp.toDouble(&isNumber);
        if (!isNumber || timestamp != timestamp.trimmed() || !(std::abs(milliseconds) <= 8.64e15))
            return {};
        const auto whole = qint64(std::floor(milliseconds));
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(whole, Qt::UTC);
        return dayShortMonthAndYear(m_calendar.day(time), m_calendar.locale);
    }

    const UserCalendar &m_calendar;
};

} // namespace

QString markdownOracle(const ADFNode &document, const UserCalendar &calendar)
{
    const Nodes content = document.content.value_or(Nodes());
    return Oracle(calendar).blocks(content, QString()).join(u"\n\n"_s);
}
