#include "richtext/ADFCoding.h"
#include "richtext/Outline.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

JSONValue valueOf(const QString &json)
{
    const auto value = ADFCoding::decodeValue(json.toUtf8());
    if (!value)
        qFatal("not JSON: %s", qPrintable(json));
    return *value;
}

/// Splits a line at its blanks, except those inside quotes and brackets.
QStringList wordsOf(QStringView line)
{
    QStringList words(1);
    int depth = 0;
    bool isQuoted = false;
    bool isEscaped = false;
    for (const QChar character : line) {
        if (character == u' ' && depth == 0 && !isQuoted) {
            words.append(QString());
            continue;
        }
        words.last() += character;
        if (character == u'"' && !isEscaped)
            isQuoted = !isQuoted;
        isEscaped = character == u'\\' && !isEscaped;
        if (!isQuoted && QStringView(u"{[(").contains(character))
            ++depth;
        if (!isQuoted && QStringView(u"}])").contains(character))
            --depth;
    }
    return words;
}

ADFMark markOf(const QString &word)
{
    if (word.startsWith("link("_L1))
        return {u"link"_s, ADFAttributes{{u"href"_s, word.sliced(5).chopped(1)}}};
    const qsizetype attributes = word.indexOf(u'{');
    if (attributes < 0)
        return {word, std::nullopt};
    return {word.first(attributes), *valueOf(word.sliced(attributes)).asObject()};
}

ADFNode nodeOf(QStringView line)
{
    QStringList words = wordsOf(line);
    ADFNode node;
    if (words.last() == u"[]") {
        node.content.emplace();
        words.removeLast();
    }
    if (words.last().startsWith(u'{'))
        node.attrs = *valueOf(words.takeLast()).asObject();
    if (words.last().startsWith(u'"')) {
        node.type = u"text"_s;
        node.text = *valueOf(words.takeLast()).asString();
    } else {
        node.type = words.takeLast();
    }
    for (const QString &word : words) {
        node.marks = node.marks.value_or(QList<ADFMark>());
        node.marks->append(markOf(word));
    }
    return node;
}

/// Reads the lines from `next` on that are indented by `level` steps, with those below them.
QList<ADFNode> read(const QStringList &lines, qsizetype &next, qsizetype level)
{
    QList<ADFNode> nodes;
    while (next < lines.size()) {
        const QString &line = lines[next];
        const auto isText = [](QChar character) { return character != u' '; };
        const qsizetype indent = std::ranges::find_if(line, isText) - line.begin();
        if (indent != 2 * level)
            break;
        ++next;
        ADFNode node = nodeOf(QStringView(line).sliced(indent));
        if (QList<ADFNode> content = read(lines, next, level + 1); !content.isEmpty())
            node.content = std::move(content);
        nodes.append(std::move(node));
    }
    return nodes;
}

} // namespace

QList<ADFNode> nodesOf(const QString &outline)
{
    QStringList lines = outline.split(u'\n');
    lines.removeAll(QString());
    qsizetype next = 0;
    QList<ADFNode> nodes = read(lines, next, 0);
    if (next < lines.size())
        qFatal("unexpected indent: %s", qPrintable(lines[next]));
    return nodes;
}
