#include "richtext/losses/ReadBack.h"

#include "richtext/ADFMarkdown.h"
#include "richtext/ADFNodes.h"
#include "richtext/ADFQueries.h"
#include "richtext/markdown/LinkTarget.h"
#include "richtext/writing/InlineWriter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Dates contain no markup in any language, so any calendar does.
UserCalendar anyCalendar()
{
    return {QLocale::c(), QTimeZone::utc()};
}

/// The marks that are read again, in the order of the reader.
QList<ADFMark> keptMarks(const ADFNode &text)
{
    QList<ADFMark> kept;
    if (ADF::hasMark(text, u"code"))
        kept.append({u"code"_s, {}});
    for (const QString &type : {u"strong"_s, u"em"_s, u"strike"_s}) {
        if (ADF::hasMark(text, type) && kept.value(0).type != u"code")
            kept.append({type, {}});
    }
    for (const ADFMark &mark : text.marks.value_or(QList<ADFMark>())) {
        const auto href = mark.attrs.value_or(ADFAttributes()).value(u"href"_s).string();
        if (mark.type != u"link" || !href)
            continue;
        const QString target = LinkTarget::absoluteString(*href);
        if (!target.isEmpty())
            kept.append({u"link"_s, ADFAttributes{{u"href"_s, target}}});
        break;
    }
    return kept;
}

/// A sequence of texts and line breaks in which adjacent texts have different marks.
class Line
{
public:
    void append(const QList<ADFNode> &nodes)
    {
        for (const ADFNode &node : nodes)
            append(node);
    }

    /// The nodes without the line breaks at their end.
    QList<ADFNode> take()
    {
        while (!m_nodes.isEmpty() && m_nodes.last().type == u"hardBreak")
            m_nodes.removeLast();
        return std::move(m_nodes);
    }

private:
    void append(const ADFNode &node)
    {
        if (node.type == u"text") {
            appendLines(node.text.value_or(QString()), keptMarks(node));
        } else if (node.content) {
            append(*node.content);
        } else {
            const UserCalendar calendar = anyCalendar();
            QuotedText text;
            InlineWriter(text, calendar).write(node);
            appendLines(text.take(), {});
        }
    }

    void appendLines(const QString &text, const QList<ADFMark> &marks)
    {
        bool isFirst = true;
        for (const QStringView line : QStringView(text).tokenize(u'\n')) {
            if (!isFirst)
                m_nodes.append(ADF::plain(u"hardBreak"));
            isFirst = false;
            appendText(line.toString(), marks);
        }
    }

    void appendText(const QString &text, const QList<ADFMark> &marks)
    {
        if (text.isEmpty())
            return;
        const bool continues = !m_nodes.isEmpty() && m_nodes.last().type == u"text" &&
                               m_nodes.last().marks.value_or(QList<ADFMark>()) == marks;
        if (continues)
            m_nodes.last().text->append(text);
        else
            m_nodes.append(ADF::text(text, marks));
    }

    QList<ADFNode> m_nodes;
};

/// The reader ignores blanks around the text of a heading.
void trim(QList<ADFNode> &nodes)
{
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    while (!nodes.isEmpty() && nodes.first().text && isBlank(nodes.first().text->front())) {
        nodes.first().text->remove(0, 1);
        if (nodes.first().text->isEmpty())
            nodes.removeFirst();
    }
    while (!nodes.isEmpty() && nodes.last().text && isBlank(nodes.last().text->back())) {
        nodes.last().text->chop(1);
        if (nodes.last().text->isEmpty())
            nodes.removeLast();
    }
}

/// The block with only the members that Markdown represents.
ADFNode reduced(const ADFNode &block)
{
    Line line;
    line.append(ADF::children(block));
    ADFNode result = ADF::container(block.type, line.take());
    if (block.type == u"heading") {
        trim(*result.content);
        const qint64 level =
            block.attrs.value_or(ADFAttributes()).value(u"level"_s).integer().value_or(1);
        result.attrs = ADFAttributes{{u"level"_s, int(std::clamp<qint64>(level, 1, 6))}};
    }
    return result;
}

ADFNode reducedCode(const ADFNode &block)
{
    const QString code = ADF::plainText(block);
    ADFNode result = ADF::container(u"codeBlock", {});
    if (!code.isEmpty())
        result.content->append(ADF::text(code));
    const QString language = ADF::attribute(block, u"language"_s).value_or(QString());
    if (!language.isEmpty())
        result.attrs = ADFAttributes{{u"language"_s, language}};
    return result;
}

/// Removes the members that are made anew at each reading.
void dropTaskIDs(ADFNode &node)
{
    if (node.type == u"taskList" || node.type == u"taskItem")
        node.attrs.reset();
    for (qsizetype i = 0; node.content && i < node.content->size(); ++i)
        dropTaskIDs((*node.content)[i]);
}

ADFNode placed(const ADFNode &block, TextPlace place)
{
    if (place == TextPlace::Task)
        return ADF::container(u"taskList", {ADF::container(u"taskItem", ADF::children(block))});
    if (place == TextPlace::Item)
        return ADF::container(u"bulletList", {ADF::container(u"listItem", {block})});
    return block;
}

} // namespace

bool readsBack(const ADFNode &block, TextPlace place)
{
    const ADFNode expected = block.type == u"codeBlock" ? reducedCode(block) : reduced(block);
    const bool isEmpty = expected.content->isEmpty();
    if (isEmpty && place == TextPlace::Page && block.type == u"paragraph")
        return true;
    const ADFNode document = ADF::document({placed(expected, place)});
    ADFNode read = ADFMarkdown::document(ADFMarkdown::markdown(document, anyCalendar()),
                                         [] { return QString(); });
    for (ADFNode &each : *read.content)
        dropTaskIDs(each);
    return read == document;
}
