#pragma once

#include <QStringView>

#include <span>

namespace Markdown {

/// A line in its original form, and without spaces and tabs at its ends.
struct Line
{
    QStringView whole;
    QStringView trimmed;
};

/// Iterates over lines. The current line must not be requested at the end.
class LineCursor
{
public:
    explicit LineCursor(std::span<const QStringView> lines) : m_lines(lines) { enter(); }

    bool atEnd() const { return m_lines.empty(); }
    const Line &line() const { return m_line; }
    /// Returns the current line and advances to the next one.
    Line take()
    {
        const Line taken = m_line;
        m_lines = m_lines.subspan(1);
        enter();
        return taken;
    }

private:
    void enter() { m_line = atEnd() ? Line() : Line{m_lines.front(), trimmed(m_lines.front())}; }

    static QStringView trimmed(QStringView line)
    {
        const auto isBlank = [](QChar character) {
            return character == u' ' || character == u'\t';
        };
        while (!line.isEmpty() && isBlank(line.front()))
            line = line.sliced(1);
        while (!line.isEmpty() && isBlank(line.back()))
            line.chop(1);
        return line;
    }

    std::span<const QStringView> m_lines;
    Line m_line;
};

} // namespace Markdown
