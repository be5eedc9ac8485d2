#include "screens/kit/painters/GlyphPainter.h"

#include "screens/kit/painters/SoftShadow.h"
#include "screens/kit/painters/SymbolPainter.h"

#include <QImage>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

SoftShadow glyphShadow(qreal size)
{
    return {0.08 * size, 0.2 * size, QColor(77, 64, 204, 89)};
}

QPainterPath roundedSquare(qreal size)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(0, 0, size, size), 0.26 * size, 0.26 * size);
    return path;
}

void paintGround(QPainter &painter, qreal size)
{
    QLinearGradient gradient(0, 0, 0, size);
    gradient.setColorAt(0, QColor(115, 128, 242));
    gradient.setColorAt(1, QColor(84, 61, 191));
    painter.fillPath(roundedSquare(size), gradient);
}

void paintUpperEdge(QPainter &painter, qreal size)
{
    constexpr qreal line = 0.5;
    const auto square = roundedSquare(size);
    painter.fillPath(square.subtracted(square.translated(0, line)), QColor(255, 255, 255, 89));
}

// The symbol in black provides the coverage, to which the gradient and the shadow are applied.
QImage symbolImage(const QSizeF &box, qreal side, qreal scale, const QColor &color)
{
    QImage image((box * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    const QRectF square((box.width() - side) / 2, (box.height() - side) / 2, side, side);
    paintSymbol(painter, {u"square.stack.3d.up.fill"_s, color}, square);
    return image;
}

void paintSymbolShadow(QPainter &painter, const QImage &symbol, qreal size, qreal scale)
{
    const auto blurred =
        blurredAlpha(symbol.convertToFormat(QImage::Format_Alpha8), 0.015 * size * scale);
    QImage shadow(blurred.size(), QImage::Format_ARGB32_Premultiplied);
    shadow.fill(QColor(0, 0, 0, 64));
    QPainter tint(&shadow);
    tint.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    tint.drawImage(0, 0, blurred);
    tint.end();
    painter.drawImage(QRectF(0, 0.02 * size, size, size), shadow);
}

void paintSymbolFace(QPainter &painter, QImage symbol, qreal size)
{
    QPainter face(&symbol);
    face.setCompositionMode(QPainter::CompositionMode_SourceIn);
    const qreal top = symbol.height() * 0.235;
    QLinearGradient gradient(0, top, 0, symbol.height() - top);
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, QColor(0xE9, 0xE9, 0xF8));
    face.fillRect(symbol.rect(), gradient);
    face.end();
    painter.drawImage(QRectF(0, 0, size, size), symbol);
}

} // namespace

qreal appGlyphMargin(qreal size)
{
    return std::ceil(shadowReach(glyphShadow(size)));
}

void paintAppGlyph(QPainter &painter, qreal size, qreal scale)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintSoftShadow(painter, roundedSquare(size), glyphShadow(size), scale);
    paintGround(painter, size);
    paintUpperEdge(painter, size);
    const auto symbol = symbolImage(QSizeF(size, size), 0.53 * size, scale, Qt::black);
    paintSymbolShadow(painter, symbol, size, scale);
    paintSymbolFace(painter, symbol, size);
}
