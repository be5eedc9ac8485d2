#include "screens/documents/layout/TextShape.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// The distance between two lines of a text, and half of it above the first.
constexpr double lineSpacing = 2;
constexpr double groundRadius = 4;
/// How far the background of a code word reaches beyond it.
constexpr double groundOverhang = 2;
/// Inter's lines are 1.21 times its size, and lines of code are 18 at size 12.
constexpr double codeLine = 1.5;

/// The text as it is laid out, with the same number of units. Line feeds break lines inside a text.
QString shown(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        if (letter == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n')
            text[i] = QChar(0x200B);
        else if (letter == u'\n' || letter == u'\r' || letter == QChar::ParagraphSeparator)
            text[i] = QChar::LineSeparator;
        else if (letter == QChar::ObjectReplacementCharacter || letter == QChar::Null)
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

/// The whole text of a block. A status stays on one line.
QString shown(const InlineRuns &runs)
{
    QString text;
    for (const auto &run : runs) {
        const bool isStatus = run.kind == InlineRun::Kind::Status;
        text += isStatus ? QString(run.text).replace(u' ', QChar::Nbsp) : run.text;
    }
    return shown(text);
}

QColor groundOf(const InlineRun &run, const DocumentStyle &style)
{
    constexpr double code = 0.08;
    constexpr double status = 0.1;
    constexpr double own = 0.18;
    if (run.kind == InlineRun::Kind::Status)
        return style.ink(status);
    if (run.kind == InlineRun::Kind::OwnMention) {
        QColor color = style.accent;
        color.setAlphaF(float(own));
        return color;
    }
    return run.isCode ? style.ink(code) : QColor();
}

} // namespace

TextShape::TextShape(const TextBlock &text, const DocumentStyle &style, double bodySize)
    : m_layout(shown(text.runs), style.font(text.role, bodySize)),
      m_color(text.isSecondary ? style.secondary : style.primary),
      m_selection(style.selection),
      m_isWrapped(text.role != TextBlock::Role::Code)
{
    const QFontMetricsF metrics(m_layout.font());
    const bool isCode = text.role == TextBlock::Role::Code;
    m_ascent = std::round(metrics.ascent());
    m_lineHeight = isCode ? std::round(codeLine * m_layout.font().pixelSize())
                          : std::ceil(metrics.height()) + lineSpacing;
    QTextOption option;
    option.setWrapMode(isCode ? QTextOption::NoWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    if (isCode) {
        constexpr int tabColumns = 4;
        option.setTabStopDistance(tabColumns * metrics.horizontalAdvance(u' '));
        option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setTextDirection(Qt::LeftToRight);
    } else {
        option.setTextDirection(Qt::LayoutDirectionAuto);
    }
    m_layout.setTextOption(option);
    m_layout.setCacheEnabled(true);
    format(text, style, bodySize);
}

void TextShape::format(const TextBlock &text, const DocumentStyle &style, double bodySize)
{
    QList<QTextLayout::FormatRange> formats;
    int start = 0;
    for (const auto &run : text.runs) {
        QTextLayout::FormatRange range;
        range.start = start;
        range.length = int(run.text.size());
        QFont font = style.font(text.role, bodySize, run);
        if (text.isStruck)
            font.setStrikeOut(true);
        // Plain text is laid out without formats, which is faster.
        if (font != m_layout.font())
            range.format.setFont(font, QTextCharFormat::FontPropertiesAll);
        if (const QColor color = style.textColor(text, run); color != m_color)
            range.format.setForeground(color);
        if (!range.format.isEmpty())
            formats.append(range);
        if (const QColor ground = groundOf(run, style); ground.isValid())
            m_grounds.push_back({start, start + range.length, ground});
        start += range.length;
    }
    m_layout.setFormats(formats);
}

void TextShape::layOut(double width)
{
    const bool isMeasuring = width >= Unwrapped;
    if (isMeasuring && m_isWrapped) {
        auto option = m_layout.textOption();
        option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
        m_layout.setTextOption(option);
    }
    m_lines.clear();
    m_naturalWidth = 0;
    m_height = 0;
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(m_isWrapped ? std::max(width, 1.0) : Unwrapped);
        const double above = std::round((m_lineHeight - line.height()) / 2);
        const bool fits = line.height() <= m_lineHeight;
        // All lines have the same distance, unless the letters of another font do not fit.
        const double baseline =
            fits ? std::min(m_ascent + lineSpacing / 2, line.ascent() + std::max(above, 0.0))
                 : line.ascent();
        line.setPosition({0, m_height + baseline - line.ascent()});
        m_lines.push_back({m_height, fits ? m_lineHeight : std::ceil(line.height())});
        m_height += m_lines.back().height;
        m_naturalWidth = std::max(m_naturalWidth, line.naturalTextWidth());
    }
    m_layout.endLayout();
    if (m_lines.empty()) {
        m_lines.push_back({0, m_lineHeight});
        m_height = m_lineHeight;
    }
}

QRectF TextShape::box(int number, int start, int end) const
{
    const auto line = m_layout.lineAt(number);
    const int first = std::max(start, line.textStart());
    const int last = std::min(end, line.textStart() + line.textLength());
    if (first >= last)
        return {};
    const double from = line.cursorToX(first);
    const double to = line.cursorToX(last);
    const auto &place = m_lines[size_t(number)];
    return {std::min(from, to), place.top, std::abs(to - from), place.height};
}

QList<QRectF> TextShape::boxes(int start, int end) const
{
    QList<QRectF> boxes;
    for (int i = 0; i < m_layout.lineCount(); ++i) {
        if (const auto part = box(i, start, end); part.width() > 0)
            boxes.append(part);
    }
    return boxes;
}

void TextShape::draw(QPainter &painter, QPointF at, TextRange::Part selected) const
{
    for (const auto &ground : m_grounds) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground.color);
        for (const auto &part : boxes(ground.start, ground.end))
            painter.drawRoundedRect(
                part.translated(at).adjusted(-groundOverhang, 1, groundOverhang, -1), groundRadius,
                groundRadius);
    }
    QList<QTextLayout::FormatRange> selections;
    if (selected.start < selected.end) {
        QTextLayout::FormatRange range;
        range.start = selected.start;
        range.length = selected.end - selected.start;
        range.format.setBackground(m_selection);
        selections.append(range);
    }
    painter.setPen(m_color);
    painter.setBrush(Qt::NoBrush);
    m_layout.draw(&painter, at, selections);
}

int TextShape::offsetAt(QPointF position) const
{
    if (m_layout.lineCount() == 0)
        return 0;
    int number = 0;
    while (number + 1 < m_layout.lineCount() && position.y() >= m_lines[size_t(number) + 1].top)
        ++number;
    const auto line = m_layout.lineAt(number);
    const int offset = line.xToCursor(position.x());
    // The end of a line is the start of the next one, unless a line feed stands there.
    const int end = line.textStart() + line.textLength();
    if (offset == end && end > line.textStart() && end < length())
        return m_layout.previousCursorPosition(end);
    return offset;
}

bool TextShape::covers(QPointF position) const
{
    for (int i = 0; i < m_layout.lineCount(); ++i) {
        const auto line = m_layout.lineAt(i);
        const auto &place = m_lines[size_t(i)];
        if (position.y() < place.top || position.y() >= place.top + place.height)
            continue;
        const QRectF ink = line.naturalTextRect();
        return position.x() >= ink.left() && position.x() < ink.right();
    }
    return false;
}

QRectF TextShape::caret(int offset) const
{
    const auto line = m_layout.lineForTextPosition(std::clamp(offset, 0, length()));
    if (!line.isValid())
        return {0, 0, 0, m_lineHeight};
    const auto &place = m_lines[size_t(line.lineNumber())];
    return {line.cursorToX(offset), place.top, 0, place.height};
}

double TextShape::firstBaseline() const
{
    const auto line = m_layout.lineCount() > 0 ? m_layout.lineAt(0) : QTextLine();
    return line.isValid() ? line.y() + line.ascent() : m_ascent + lineSpacing / 2;
}
