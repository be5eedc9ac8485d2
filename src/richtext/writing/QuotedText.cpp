#include "richtext/writing/QuotedText.h"

void QuotedText::append(QStringView text)
{
    while (!m_marks.isEmpty()) {
        const qsizetype end = text.indexOf(u'\n');
        if (end < 0)
            break;
        m_text += text.first(end + 1);
        m_text += m_marks;
        text = text.sliced(end + 1);
    }
    m_text += text;
}

qsizetype QuotedText::beginQuote(QStringView indent)
{
    const qsizetype outerMarks = m_marks.size();
    m_marks += indent;
    m_marks += u"> ";
    m_text += QStringView(m_marks).sliced(outerMarks);
    return outerMarks;
}
