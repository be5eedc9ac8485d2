#include "screens/documents/content/RandomTree.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

const std::array kinds{
    u"paragraph"_s,  u"heading"_s,  u"bulletList"_s,    u"orderedList"_s,  u"listItem"_s,
    u"taskList"_s,   u"taskItem"_s, u"decisionList"_s,  u"decisionItem"_s, u"codeBlock"_s,
    u"blockquote"_s, u"panel"_s,    u"rule"_s,          u"mediaSingle"_s,  u"mediaGroup"_s,
    u"media"_s,      u"table"_s,    u"tableRow"_s,      u"tableCell"_s,    u"tableHeader"_s,
    u"expand"_s,     u"text"_s,     u"layoutSection"_s, u"nouveau"_s,      u"hardBreak"_s,
    u"mention"_s,    u"status"_s,   u"date"_s,          u"inlineCard"_s,   u"emoji"_s,
    u"text"_s,       u"text"_s,     u"doc"_s,           u"nestedExpand"_s, u""_s};

const std::array words{u"mot"_s,
                       u"une phrase un peu plus longue que les autres"_s,
                       u"שלום עולם"_s,
                       u"مرحبا 123 fin"_s,
                       u"👩‍👩‍👧‍👦🏳️‍🌈"_s,
                       u"\u200B\u200D\u2060\uFEFF"_s,
                       u""_s,
                       u"\n\n\t\r"_s,
                       QString(QChar(0xD800)),
                       QString(QChar(u'\0')),
                       u"e\u0301\u0301\u0301\u0301"_s,
                       u"\u202Eabc\u202C"_s,
                       QString(300, u'W')};

const std::array keys{u"level"_s, u"order"_s, u"state"_s,     u"panelType"_s, u"title"_s,
                      u"text"_s,  u"id"_s,    u"shortName"_s, u"url"_s,       u"timestamp"_s,
                      u"color"_s, u"href"_s,  u"alt"_s,       u"width"_s,     u"height"_s};

const std::array marks{u"strong"_s, u"em"_s,        u"strike"_s,    u"code"_s,
                       u"link"_s,   u"underline"_s, u"textColor"_s, u"autre"_s};

} // namespace

ADFNode RandomTree::document(int depth)
{
    ADFNode root{.type = u"doc"_s};
    root.content.emplace();
    for (int i = below(12); i >= 0; --i)
        root.content->append(node(depth));
    return root;
}

ADFNode RandomTree::node(int depth)
{
    ADFNode made{.type = kinds[size_t(below(int(kinds.size())))]};
    if (made.type == u"text" || below(9) == 0)
        made.text = text();
    if (below(2) == 0)
        made.attrs = attributes();
    for (int i = below(3); i > 0 && made.text; --i) {
        if (!made.marks)
            made.marks.emplace();
        made.marks->append({marks[size_t(below(int(marks.size())))], attributes()});
    }
    if (depth > 0 && made.type != u"text" && below(6) > 0) {
        made.content.emplace();
        for (int i = below(5); i > 0; --i)
            made.content->append(node(depth - 1));
    }
    return made;
}

ADFAttributes RandomTree::attributes()
{
    ADFAttributes made;
    for (int i = below(4); i > 0; --i)
        made.insert(keys[size_t(below(int(keys.size())))], value());
    return made;
}

JSONValue RandomTree::value()
{
    const std::array<JSONValue, 12> values{JSONValue(),
                                           JSONValue(true),
                                           JSONValue(-1),
                                           JSONValue(1e308),
                                           JSONValue(-1e9),
                                           JSONValue(9.3e18),
                                           JSONValue(0.5),
                                           JSONValue(u"DONE"),
                                           JSONValue(u"2"),
                                           JSONValue(u"https://exemple.fr"),
                                           JSONValue(JSONValue::Array{1, 2}),
                                           JSONValue(text())};
    return values[size_t(below(int(values.size())))];
}

QString RandomTree::text()
{
    return words[size_t(below(int(words.size())))];
}
