#pragma once

#include "model/ADFNode.h"
#include "model/dates/UserCalendar.h"
#include "richtext/writing/InlineWriter.h"
#include "richtext/writing/QuotedText.h"

#include <QString>

/// Writes the blocks of a document as Markdown. Takes time in proportion to the length of the text. Recursive: the
/// depth of the document is limited by the stack, far beyond what `ADFCoding` decodes.
class BlockWriter
{
public:
    /// The calendar must outlive the writer.
    explicit BlockWriter(const UserCalendar &calendar) : m_inline(m_text, calendar) {}

    /// Writes the blocks with a blank line between them, except those that have no text.
    void write(const QList<ADFNode> &blocks);
    QString take() { return m_text.take(); }

private:
    struct Kind;
    class DeeperIndent;

    void writeBlock(const ADFNode &node);
    void writeLine(QStringView start, const ADFNode &node);
    void writeParagraph(const ADFNode &node);
    void writeHeading(const ADFNode &node);
    void writeBulletList(const ADFNode &node);
    void writeOrderedList(const ADFNode &node);
    void writeListItem(const ADFNode &item, QStringView marker);
    void writeTaskList(const ADFNode &node);
    void writeCode(const ADFNode &node);
    void writeQuote(const ADFNode &node);
    void writeRule(const ADFNode &node);
    void writeMedia(const ADFNode &node);
    void writeTable(const ADFNode &node);
    void writeRow(const ADFNode &row);
    void writeOther(const ADFNode &node);

    QuotedText m_text;
    InlineWriter m_inline;
    /// What the first line of each block begins with.
    QString m_indent;
};
