#pragma once

#include "model/ADFNode.h"
#include "model/dates/UserCalendar.h"
#include "richtext/writing/QuotedText.h"

/// Writes inline nodes as Markdown: text with its marks, line breaks, and the texts of mentions, emoji, cards, statuses
/// and dates. Literal text is not escaped.
class InlineWriter
{
public:
    /// Both must outlive the writer.
    InlineWriter(QuotedText &text, const UserCalendar &calendar)
        : m_text(text), m_calendar(calendar)
    {
    }

    /// Writes the nodes one after the other, without a separator.
    void write(const QList<ADFNode> &nodes);
    void write(const ADFNode &node);

private:
    void writeText(const ADFNode &node);

    QuotedText &m_text;
    const UserCalendar &m_calendar;
};
