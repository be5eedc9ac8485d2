#include "richtext/RandomDocuments.h"

#include "richtext/ADFNodes.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

int below(Random &random, int limit)
{
    return int(random() % unsigned(limit));
}

bool oneIn(Random &random, int count)
{
    return below(random, count) == 0;
}

template <typename List>
auto pick(Random &random, const List &values)
{
    return values[below(random, int(values.size()))];
}

/// Documents of any shape.
class AnyDocuments
{
public:
    explicit AnyDocuments(Random &random) : m_random(random) {}

    ADFNode node(int depth)
    {
        static const QStringList types{
            u"paragraph"_s,   u"heading"_s,      u"bulletList"_s,   u"orderedList"_s,
            u"listItem"_s,    u"taskList"_s,     u"taskItem"_s,     u"codeBlock"_s,
            u"blockquote"_s,  u"rule"_s,         u"mediaSingle"_s,  u"mediaGroup"_s,
            u"media"_s,       u"table"_s,        u"tableRow"_s,     u"tableCell"_s,
            u"tableHeader"_s, u"panel"_s,        u"expand"_s,       u"layoutSection"_s,
            u"unknown"_s,     u"text"_s,         u"hardBreak"_s,    u"mention"_s,
            u"emoji"_s,       u"inlineCard"_s,   u"status"_s,       u"date"_s,
            u"mediaInline"_s, u"decisionItem"_s, u"decisionList"_s, u"paragraph"_s,
            u"listItem"_s,    u"text"_s,         u"text"_s,         u"text"_s};
        ADFNode node = ADF::plain(pick(m_random, types));
        if (node.type == u"text" && !oneIn(m_random, 20))
            node.text = text();
        if (oneIn(m_random, 3))
            node.attrs = attributes();
        if (node.type == u"text" && oneIn(m_random, 2))
            node.marks = marks();
        const bool isLeaf = node.type == u"text" || node.type == u"hardBreak";
        if (depth > 0 && !oneIn(m_random, isLeaf ? 1 : 12))
            node.content = nodes(depth - 1);
        return node;
    }

    QList<ADFNode> nodes(int depth)
    {
        QList<ADFNode> nodes;
        for (int count = below(m_random, 4); count > 0; --count)
            nodes.append(node(depth));
        return nodes;
    }

private:
    QString text()
    {
        static const QStringList texts{u"mot"_s,  u"deux mots"_s, u"*"_s,         u""_s,
                                       u"a\nb"_s, u"> "_s,        u"\n"_s,        u"été 🚀"_s,
                                       u"# a"_s,  u"`"_s,         u"- a\n\n- b"_s};
        return pick(m_random, texts);
    }

    ADFAttributes attributes()
    {
        static const QStringList names{u"text"_s,      u"shortName"_s, u"url"_s,   u"state"_s,
                                       u"timestamp"_s, u"level"_s,     u"order"_s, u"language"_s,
                                       u"href"_s,      u"id"_s};
        static const QList<JSONValue> values{
            u"DONE"_s,      u"TODO"_s,          2,      9,     -3,          0,    1.5,
            u"3"_s,         u"1761868800000"_s, u"x"_s, u""_s, JSONValue(), true, 1e300,
            1761868800000.0};
        ADFAttributes attributes;
        for (int count = below(m_random, 5); count > 0; --count)
            attributes.insert(pick(m_random, names), pick(m_random, values));
        return attributes;
    }

    QList<ADFMark> marks()
    {
        static const QStringList types{u"link"_s, u"strike"_s,    u"em"_s,     u"strong"_s,
                                       u"code"_s, u"underline"_s, u"subsup"_s, u"textColor"_s};
        QList<ADFMark> marks;
        for (int count = below(m_random, 4); count > 0; --count) {
            marks.append({pick(m_random, types), {}});
            if (!oneIn(m_random, 3))
                marks.last().attrs = attributes();
            if (marks.last().attrs && oneIn(m_random, 2))
                marks.last().attrs->insert(u"href"_s, u"https://exemple.fr"_s);
        }
        return marks;
    }

    Random &m_random;
};

/// Documents that Markdown can represent.
class PlainDocuments
{
public:
    explicit PlainDocuments(Random &random) : m_random(random) {}

    QList<ADFNode> blocks()
    {
        QList<ADFNode> blocks;
        for (int count = below(m_random, 6); count > 0; --count)
            blocks.append(block());
        return blocks;
    }

private:
    ADFNode block()
    {
        switch (below(m_random, 8)) {
        case 0:
            return heading();
        case 1:
            return ADF::plain(u"rule");
        case 2:
            return taskList();
        case 3:
            return quote();
        default:
            return quotable();
        }
    }

    /// A block that a quote can contain.
    ADFNode quotable()
    {
        switch (below(m_random, 4)) {
        case 0:
            return list(below(m_random, 4), oneIn(m_random, 2));
        case 1:
            return code();
        default:
            return ADF::container(u"paragraph", lines());
        }
    }

    ADFNode quote()
    {
        m_inQuote = true;
        ADFNode quote = ADF::container(u"blockquote", {quotable()});
        for (int count = below(m_random, 3); count > 0; --count)
            quote.content->append(quotable());
        m_inQuote = false;
        return quote;
    }

    ADFNode heading()
    {
        ADFNode heading = ADF::container(u"heading", line());
        heading.attrs = ADFAttributes{{u"level"_s, below(m_random, 6) + 1}};
        return heading;
    }

    ADFNode code()
    {
        QStringList code;
        for (int count = below(m_random, 4); count > 0; --count)
            code.append(pick(m_random, QStringList{u"int main()"_s, u"  return *x;"_s, u""_s,
                                                   u"# commentaire"_s, u"> a"_s, u"- ``x``"_s}));
        const QString text = code.join(u'\n');
        QList<ADFNode> content;
        if (!text.isEmpty())
            content.append(ADF::text(text));
        ADFNode block = ADF::container(u"codeBlock", content);
        if (oneIn(m_random, 2))
            block.attrs = ADFAttributes{{u"language"_s, u"c++"_s}};
        return block;
    }

    ADFNode list(int depth, bool isOrdered)
    {
        ADFNode list = ADF::container(isOrdered ? u"orderedList" : u"bulletList", {item(depth)});
        for (int count = below(m_random, 3); count > 0; --count)
            list.content->append(item(depth));
        if (isOrdered && oneIn(m_random, 2))
            list.attrs = ADFAttributes{{u"order"_s, pick(m_random, QList<int>{0, 2, 7, 990})}};
        return list;
    }

    ADFNode item(int depth)
    {
        // The reader of quotes removes the blank after a marker without text.
        const bool isEmpty = !m_inQuote && oneIn(m_random, 8);
        const QList<ADFNode> text = isEmpty ? QList<ADFNode>() : line();
        ADFNode item = ADF::container(u"listItem", {ADF::container(u"paragraph", text)});
        bool isOrdered = oneIn(m_random, 2);
        for (int count = depth > 0 ? below(m_random, 3) : 0; count > 0; --count) {
            item.content->append(list(depth - 1, isOrdered));
            isOrdered = !isOrdered;
        }
        return item;
    }

    ADFNode taskList()
    {
        ADFNode list = ADF::container(u"taskList", {});
        list.attrs = ADFAttributes{{u"localId"_s, u"id"_s}};
        for (int count = below(m_random, 3) + 1; count > 0; --count) {
            ADFNode task = ADF::container(u"taskItem", line());
            task.attrs = ADFAttributes{{u"localId"_s, u"id"_s},
                                       {u"state"_s, oneIn(m_random, 2) ? u"DONE"_s : u"TODO"_s}};
            list.content->append(task);
        }
        return list;
    }

    /// Inline nodes on several lines.
    QList<ADFNode> lines()
    {
        QList<ADFNode> nodes = line();
        for (int count = below(m_random, 3); count > 0; --count) {
            nodes.append(ADF::plain(u"hardBreak"));
            nodes += line();
        }
        return nodes;
    }

    /// Inline nodes in which plain text stands between texts with marks.
    QList<ADFNode> line()
    {
        QList<ADFNode> nodes{ADF::text(words())};
        for (int count = below(m_random, 4); count > 0; --count) {
            nodes.last().text->append(u' ');
            nodes.append(ADF::text(words(), marks()));
            nodes.append(ADF::text(u' ' + words()));
        }
        if (nodes.size() > 1 && oneIn(m_random, 2))
            nodes.removeFirst();
        return nodes;
    }

    QList<ADFMark> marks()
    {
        QList<ADFMark> marks;
        if (oneIn(m_random, 4)) {
            marks.append({u"code"_s, {}});
        } else {
            const int chosen = below(m_random, 7) + 1;
            const QStringList types{u"strong"_s, u"em"_s, u"strike"_s};
            for (int i = 0; i < 3; ++i) {
                if (chosen & (1 << i))
                    marks.append({types[i], {}});
            }
        }
        if (oneIn(m_random, 4))
            marks.append({u"link"_s, ADFAttributes{{u"href"_s, u"https://exemple.fr/a?b=c"_s}}});
        return marks;
    }

    QString words()
    {
        static const QStringList known{u"mot"_s, u"été"_s, u"🚀"_s, u"e2e"_s, u"fin."_s, u"(x)"_s};
        QString text = pick(m_random, known);
        for (int count = below(m_random, 3); count > 0; --count)
            text += u' ' + pick(m_random, known);
        return text;
    }

    Random &m_random;
    bool m_inQuote = false;
};

} // namespace

ADFNode anyDocument(Random &random, int depth)
{
    AnyDocuments documents(random);
    return ADF::document(documents.nodes(depth) + documents.nodes(depth));
}

ADFNode plainDocument(Random &random)
{
    return ADF::document(PlainDocuments(random).blocks());
}
