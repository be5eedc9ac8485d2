#pragma once

#include <QStringView>

#include <span>

namespace Markdown {

/// A line, as it is and without the spaces and tabs at its ends.
struct Line
{
    QStringView whole;
    QStringView trimmed;
};

/// Walks over lines. The current line may be asked for only until the end.
class LineCursor
{
public:
    explicit LineCursor(std::span<const QStringView> lines) : m_lines(lines) { enter(); }

    bool atEnd() const { return m_lines.empty(); }
    const Line &line() const { return m_line; }
    /// The current line; moves on to the next.
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
