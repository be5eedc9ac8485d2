#include "richtext/writing/BlockWriter.h"

#include "richtext/ADFNodes.h"
#include "richtext/ADFQueries.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

/// A kind of block and the function that writes it.
struct BlockWriter::Kind
{
    QStringView type;
    void (BlockWriter::*write)(const ADFNode &);
};

/// Extends the indent by one level of a list, until the end of the scope.
class BlockWriter::DeeperIndent
{
public:
    explicit DeeperIndent(QString &indent) : m_indent(indent) { m_indent += step; }
    ~DeeperIndent() { m_indent.chop(step.size()); }
    DeeperIndent(const DeeperIndent &) = delete;
    DeeperIndent &operator=(const DeeperIndent &) = delete;

private:
    static constexpr QStringView step = u"  ";

    QString &m_indent;
};

namespace {

qint64 integerAttribute(const ADFNode &node, const QString &name, qint64 otherwise)
{
    return node.attrs ? node.attrs->value(name).integer().value_or(otherwise) : otherwise;
}

/// The number of a list item. A list that starts near the largest number repeats that one.
qint64 itemNumber(qint64 start, qsizetype index)
{
    return std::min(start, std::numeric_limits<qint64>::max() - index) + index;
}

} // namespace

void BlockWriter::write(const QList<ADFNode> &blocks)
{
    bool isFirst = true;
    for (const ADFNode &node : blocks) {
        const qsizetype before = m_text.size();
        if (!isFirst)
            m_text.append(u"\n\n");
        const qsizetype start = m_text.size();
        writeBlock(node);
        if (m_text.size() == start)
            m_text.truncate(before);
        else
            isFirst = false;
    }
}

void BlockWriter::writeBlock(const ADFNode &node)
{
    static constexpr std::array kinds{
        Kind{u"paragraph", &BlockWriter::writeParagraph},
        Kind{u"heading", &BlockWriter::writeHeading},
        Kind{u"bulletList", &BlockWriter::writeBulletList},
        Kind{u"orderedList", &BlockWriter::writeOrderedList},
        Kind{u"taskList", &BlockWriter::writeTaskList},
        Kind{u"codeBlock", &BlockWriter::writeCode},
        Kind{u"blockquote", &BlockWriter::writeQuote},
        Kind{u"rule", &BlockWriter::writeRule},
        Kind{u"mediaSingle", &BlockWriter::writeMedia},
        Kind{u"mediaGroup", &BlockWriter::writeMedia},
        Kind{u"media", &BlockWriter::writeMedia},
        Kind{u"table", &BlockWriter::writeTable},
    };
    const auto kind = std::ranges::find(kinds, QStringView(node.type), &Kind::type);
    if (kind != kinds.end())
        (this->*kind->write)(node);
    else
        writeOther(node);
}

/// Writes the indent, `start` and the inline nodes of the block.
void BlockWriter::writeLine(QStringView start, const ADFNode &node)
{
    m_text.append(m_indent);
    m_text.append(start);
    m_inline.write(ADF::children(node));
}

void BlockWriter::writeParagraph(const ADFNode &node)
{
    writeLine({}, node);
}

void BlockWriter::writeHeading(const ADFNode &node)
{
    const qint64 level = std::clamp<qint64>(integerAttribute(node, u"level"_s, 1), 1, 6);
    writeLine(QString(qsizetype(level), u'#') + u' ', node);
}

void BlockWriter::writeBulletList(const ADFNode &node)
{
    QStringView separator;
    for (const ADFNode &item : ADF::children(node)) {
        m_text.append(std::exchange(separator, u"\n"));
        writeListItem(item, u"- ");
    }
}

void BlockWriter::writeOrderedList(const ADFNode &node)
{
    const QList<ADFNode> &items = ADF::children(node);
    const qint64 start = integerAttribute(node, u"order"_s, 1);
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (i > 0)
            m_text.append(u"\n");
        writeListItem(items[i], QString::number(itemNumber(start, i)) + u". "_s);
    }
}

/// The marker is written only before a paragraph, which must be the first child.
void BlockWriter::writeListItem(const ADFNode &item, QStringView marker)
{
    const QList<ADFNode> &blocks = ADF::children(item);
    for (qsizetype i = 0; i < blocks.size(); ++i) {
        if (i > 0)
            m_text.append(u"\n");
        if (i == 0 && blocks[i].type == u"paragraph") {
            writeLine(marker, blocks[i]);
        } else {
            const DeeperIndent deeper(m_indent);
            writeBlock(blocks[i]);
        }
    }
}

void BlockWriter::writeTaskList(const ADFNode &node)
{
    QStringView separator;
    for (const ADFNode &task : ADF::children(node)) {
        m_text.append(std::exchange(separator, u"\n"));
        const bool isDone = ADF::attribute(task, u"state"_s) == u"DONE";
        writeLine(isDone ? u"- [x] " : u"- [ ] ", task);
    }
}

void BlockWriter::writeCode(const ADFNode &node)
{
    m_text.append(m_indent);
    m_text.append(u"```");
    m_text.append(ADF::attribute(node, u"language"_s).value_or(QString()));
    m_text.append(u"\n");
    m_text.append(ADF::plainText(node));
    m_text.append(u"\n");
    m_text.append(m_indent);
    m_text.append(u"```");
}

void BlockWriter::writeQuote(const ADFNode &node)
{
    // The indent is a part of the marks of the quote, and the blocks inside begin without one.
    QString outerIndent = std::exchange(m_indent, QString());
    const qsizetype outerMarks = m_text.beginQuote(outerIndent);
    write(ADF::children(node));
    m_text.endQuote(outerMarks);
    m_indent = std::move(outerIndent);
}

void BlockWriter::writeRule(const ADFNode &)
{
    m_text.append(m_indent);
    m_text.append(u"---");
}

void BlockWriter::writeMedia(const ADFNode &)
{
    m_text.append(m_indent);
    m_text.append(u"[pièce jointe]");
}

void BlockWriter::writeTable(const ADFNode &node)
{
    const QList<ADFNode> &rows = ADF::children(node);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (i > 0)
            m_text.append(u"\n");
        writeRow(rows[i]);
        if (i > 0)
            continue;
        const qsizetype columns = rows[i].content ? rows[i].content->size() : 1;
        m_text.append(u'\n' + m_indent + u'|' + u" --- |"_s.repeated(columns));
    }
}

/// The blocks of a cell are written on one line, with nothing between them.
void BlockWriter::writeRow(const ADFNode &row)
{
    m_text.append(m_indent);
    m_text.append(u"| ");
    QStringView separator;
    for (const ADFNode &cell : ADF::children(row)) {
        m_text.append(std::exchange(separator, u" | "));
        for (const ADFNode &block : ADF::children(cell))
            m_inline.write(ADF::children(block));
    }
    m_text.append(u" |");
}

void BlockWriter::writeOther(const ADFNode &node)
{
    if (!node.content) {
        m_text.append(m_indent);
        m_inline.write(node);
    } else if (ADF::isInlineContainer(node.type)) {
        writeLine({}, node);
    } else {
        write(*node.content);
    }
}
