#pragma once

#include <QString>
#include <QStringView>

/// A text that is written from its start to its end. Inside quotes, every line begins with the marks of the quotes that
/// are open. The marks are kept in one text, so that entering a quote costs the same at each depth.
class QuotedText
{
public:
    qsizetype size() const { return m_text.size(); }
    /// Removes everything that was written after the text had this size.
    void truncate(qsizetype size) { m_text.truncate(size); }
    QString take() { return std::move(m_text); }

    /// Appends a text that may contain line breaks.
    void append(QStringView text);

    /// Begins a quote after `indent` and writes the mark of its first line. Returns what `endQuote` needs.
    [[nodiscard]] qsizetype beginQuote(QStringView indent);
    void endQuote(qsizetype outerMarks) { m_marks.truncate(outerMarks); }

private:
    QString m_text;
    /// What each line begins with.
    QString m_marks;
};
