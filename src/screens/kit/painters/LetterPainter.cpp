#include "screens/kit/painters/LetterPainter.h"

#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace {

bool hasPictures(const QGlyphRun &run)
{
    return std::ranges::any_of(std::array{"CBDT", "sbix", "COLR"}, [&](const char *table) {
        return !run.rawFont().fontTable(table).isEmpty();
    });
}

/// Draws characters that their font has as coloured pictures, which emoji are. False if there are none. Qt must not be
/// asked for the outlines of such characters: it would then take them to be empty from that moment on.
bool paintPictures(QPainter &painter, const QString &letters, const QFont &font)
{
    QTextLayout layout(letters, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (std::ranges::none_of(runs, hasPictures))
        return false;
    painter.setPen(Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    layout.draw(&painter, -runs.first().boundingRect().center());
    return true;
}

void paintOutlines(QPainter &painter, const QString &letters, const QFont &font)
{
    const QFontMetricsF metrics(font);
    QPainterPath outlines;
    outlines.addText(-metrics.horizontalAdvance(letters) / 2, metrics.capHeight() / 2, font,
                     letters);
    painter.fillPath(outlines, Qt::white);
}

} // namespace

void paintLetters(QPainter &painter, const QString &letters, const LetterStyle &style, qreal size)
{
    // Outlines of a large font, scaled down, are exact at sizes that are not a whole number of pixels.
    constexpr qreal drawnAt = 100;
    const QFont font = TypeScale::textFont(drawnAt, style.weight);
    painter.save();
    painter.translate(size / 2, size / 2);
    painter.scale(style.pixels / drawnAt, style.pixels / drawnAt);
    if (!paintPictures(painter, letters, font))
        paintOutlines(painter, letters, font);
    painter.restore();
}
