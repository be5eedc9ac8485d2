#include "screens/issues/face/TextMeasure.h"

#include <QFontMetricsF>
#include <QQuickWindow>

namespace TextMeasure {

namespace {

/// The options with which Qt's own text items lay out a text.
QTextOption option(QTextOption::WrapMode wrap)
{
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(wrap);
    option.setUseDesignMetrics(QQuickWindow::textRenderType() != QQuickWindow::NativeTextRendering);
    return option;
}

/// One line of the layout, `width` wide.
QTextLine lineIn(QTextLayout &layout, double width)
{
    QTextLine line = layout.createLine();
    if (!line.isValid())
        return line;
    line.setLeadingIncluded(true);
    line.setLineWidth(width);
    line.setPosition({});
    return line;
}

std::unique_ptr<QTextLayout> wholeLine(const QString &text, const QFont &font)
{
    // Wider than any text, and still within the range of Qt's fixed-point numbers.
    constexpr double noLimit = 1 << 24;
    auto layout = std::make_unique<QTextLayout>(text, font);
    layout->setCacheEnabled(true);
    layout->setTextOption(option(QTextOption::NoWrap));
    layout->beginLayout();
    lineIn(*layout, noLimit);
    layout->endLayout();
    return layout;
}

/// Empty if not even "…" fits.
QString elided(const QString &text, const QFont &font, double limit)
{
    const QFontMetricsF metrics(font);
    if (limit < metrics.horizontalAdvance(u'…'))
        return {};
    return metrics.elidedText(text, Qt::ElideRight, limit);
}

} // namespace

double width(const QString &text, const QFont &font)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

std::unique_ptr<QTextLayout> line(const QString &text, const QFont &font, double limit)
{
    auto whole = wholeLine(text, font);
    if (limit < 0 || whole->lineCount() == 0 || whole->lineAt(0).naturalTextWidth() <= limit)
        return whole;
    return wholeLine(elided(text, font, limit), font);
}

QStringList wrapped(const QString &text, const QFont &font, double limit, int count)
{
    QTextLayout layout(text, font);
    layout.setTextOption(option(QTextOption::WrapAtWordBoundaryOrAnywhere));
    layout.beginLayout();
    QStringList lines;
    for (auto line = lineIn(layout, limit); line.isValid(); line = lineIn(layout, limit)) {
        const bool isCut =
            lines.size() + 1 == count && line.textStart() + line.textLength() < text.size();
        if (isCut)
            lines += elided(text.mid(line.textStart()), font, limit);
        else
            lines += text.mid(line.textStart(), line.textLength());
        if (lines.size() == count)
            break;
    }
    layout.endLayout();
    return lines;
}

} // namespace TextMeasure
