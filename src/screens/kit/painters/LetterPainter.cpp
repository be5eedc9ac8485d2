#include "screens/kit/painters/LetterPainter.h"

#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

void paintLetters(QPainter &painter, const QString &letters, const LetterStyle &style, qreal size)
{
    // Outlines of a large font, scaled down, are exact at sizes that are not a whole number of pixels.
    constexpr qreal drawnAt = 100;
    const QFont font = TypeScale::textFont(drawnAt, style.weight);
    const QFontMetricsF metrics(font);
    QPainterPath outlines;
    outlines.addText(-metrics.horizontalAdvance(letters) / 2, metrics.capHeight() / 2, font,
                     letters);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.translate(size / 2, size / 2);
    painter.scale(style.pixels / drawnAt, style.pixels / drawnAt);
    painter.drawPath(outlines);
    painter.restore();
}
