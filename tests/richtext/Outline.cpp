#include "richtext/Outline.h"

#include "richtext/ADFCoding.h"

using namespace Qt::StringLiterals;

namespace {

QString json(const JSONValue &value)
{
    return QString::fromUtf8(ADFCoding::encode(value));
}

QString markText(const ADFMark &mark)
{
    if (!mark.attrs)
        return mark.type;
    if (mark.type == u"link" && mark.attrs->size() == 1)
        return u"link(%1)"_s.arg(mark.attrs->value(u"href"_s).string().value_or(u"?"_s));
    return mark.type + json(*mark.attrs);
}

QString ownLine(const ADFNode &node)
{
    QStringList words;
    if (node.marks && node.marks->isEmpty())
        words.append(u"[no marks]"_s);
    for (const ADFMark &mark : node.marks.value_or(QList<ADFMark>()))
        words.append(markText(mark));
    if (node.type != u"text")
        words.append(node.type);
    if (node.text)
        words.append(json(*node.text));
    if (node.attrs)
        words.append(json(*node.attrs));
    if (node.content && node.content->isEmpty())
        words.append(u"[]"_s);
    return words.join(u' ');
}

void append(const QList<ADFNode> &nodes, int level, QStringList &lines)
{
    for (const ADFNode &node : nodes) {
        lines.append(QString(2 * qsizetype{level}, u' ') + ownLine(node));
        append(node.content.value_or(QList<ADFNode>()), level + 1, lines);
    }
}

} // namespace

QString outline(const QList<ADFNode> &nodes)
{
    QStringList lines;
    append(nodes, 0, lines);
    return lines.join(u'\n');
}
