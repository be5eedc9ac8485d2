#pragma once

#include "screens/documents/content/TextPlace.h"
#include "screens/documents/layout/DocumentStyle.h"

#include <QTextLayout>

class QPainter;

/// A text that is laid out: its lines, in logical pixels from its top left corner.
class TextShape
{
public:
    /// The texts of code and the widths of columns are measured without wrapping.
    static constexpr double Unwrapped = 1e6;

    TextShape(const TextBlock &text, const DocumentStyle &style, double bodySize);
    TextShape(const TextShape &) = delete;
    TextShape &operator=(const TextShape &) = delete;

    /// Breaks the text into lines of at most this width.
    void layOut(double width);

    double height() const { return m_height; }
    /// The width of the longest line.
    double width() const { return m_naturalWidth; }
    int length() const { return int(m_layout.text().size()); }
    const QTextLayout &layout() const { return m_layout; }

    /// Draws the text with its top left corner at a position.
    void draw(QPainter &painter, QPointF at, TextRange::Part selected) const;
    /// The place that is nearest to a position.
    int offsetAt(QPointF position) const;
    /// True if there is a character at a position.
    bool covers(QPointF position) const;
    /// The rectangles of a part, one for each line.
    QList<QRectF> boxes(int start, int end) const;
    /// The line of a place, with the height of the line and the horizontal position of the place.
    QRectF caret(int offset) const;
    /// The middle and the baseline of the first line, for what stands beside it.
    double firstLineMiddle() const { return m_lines.front().height / 2; }
    double firstBaseline() const;

private:
    struct Ground
    {
        int start = 0;
        int end = 0;
        QColor color;
    };
    struct Line
    {
        double top = 0;
        double height = 0;
    };

    void format(const TextBlock &text, const DocumentStyle &style, double bodySize);
    QRectF box(int line, int start, int end) const;

    QTextLayout m_layout;
    QColor m_color;
    QColor m_selection;
    std::vector<Ground> m_grounds;
    std::vector<Line> m_lines;
    double m_ascent = 0;
    double m_lineHeight = 0;
    double m_height = 0;
    double m_naturalWidth = 0;
    bool m_isWrapped = true;
};
