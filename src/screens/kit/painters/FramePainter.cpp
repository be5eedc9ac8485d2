#include "screens/kit/painters/FramePainter.h"

#include <QHash>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QPainterPath rounded(const QRectF &box, qreal radius)
{
    const qreal fitting = std::min({radius, box.width() / 2, box.height() / 2});
    QPainterPath path;
    path.addRoundedRect(box, fitting, fitting);
    return path;
}

QColor black(qreal opacity)
{
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

// The blue-black colour of shadows in the light appearance.
QColor tinted(qreal opacity)
{
    return QColor::fromRgbF(22 / 255.0F, 22 / 255.0F, 50 / 255.0F, static_cast<float>(opacity));
}

QColor faded(QColor color, float opacity)
{
    color.setAlphaF(opacity);
    return color;
}

std::vector<SoftShadow> sameInBoth(const QString &name)
{
    static const QHash<QString, std::vector<SoftShadow>> shadows{
        {u"card"_s, {{1, 6, black(0.06)}}},     {u"cardHover"_s, {{3, 16, black(0.14)}}},
        {u"palette"_s, {{6, 36, black(0.28)}}}, {u"onboarding"_s, {{0, 40, black(0.20)}}},
        {u"mention"_s, {{0, 12, black(0.18)}}}, {u"knob"_s, {{1, 2, black(0.25)}}},
    };
    return shadows.value(name);
}

std::vector<SoftShadow> inLight(const QString &name)
{
    static const QHash<QString, std::vector<SoftShadow>> shadows{
        {u"segment"_s, {{1, 3, black(0.12)}}},
        {u"capsule"_s, {{1, 2, tinted(0.06)}, {3, 10, tinted(0.05)}}},
        {u"pane"_s, {{1, 3, tinted(0.05)}, {6, 24, tinted(0.05)}}},
        {u"bar"_s, {{2, 6, tinted(0.08)}, {10, 30, tinted(0.14)}}},
        {u"popover"_s, {{2, 6, tinted(0.08)}, {12, 36, tinted(0.18)}}},
        {u"sheet"_s, {{4, 12, tinted(0.10)}, {24, 72, tinted(0.26)}}},
    };
    return shadows.value(name);
}

std::vector<SoftShadow> inDark(const QString &name)
{
    static const QHash<QString, std::vector<SoftShadow>> shadows{
        {u"segment"_s, {{1, 3, black(0.30)}}},
        {u"capsule"_s, {{1, 2, black(0.28)}, {3, 10, black(0.20)}}},
        {u"pane"_s, {{1, 3, black(0.30)}, {8, 28, black(0.28)}}},
        {u"bar"_s, {{2, 6, black(0.30)}, {12, 36, black(0.50)}}},
        {u"popover"_s, {{2, 8, black(0.30)}, {16, 44, black(0.55)}}},
        {u"sheet"_s, {{4, 14, black(0.35)}, {28, 80, black(0.60)}}},
    };
    return shadows.value(name);
}

void paintShadows(QPainter &painter, const FrameDrawing &frame, qreal scale)
{
    const auto shape = rounded(QRectF(QPointF(), frame.size), frame.radius);
    for (const auto &shadow : frame.shadows)
        paintSoftShadow(painter, shape, shadow, scale);
    // Glass is slightly transparent, so no shadow is drawn below it, except for half a device pixel below the rim of
    // the fill.
    const qreal rim = 0.5 / scale;
    const QRectF inner = QRectF(QPointF(), frame.size).adjusted(rim, rim, -rim, -rim);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(rounded(inner, frame.radius - rim), Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void paintLines(QPainter &painter, const FrameDrawing &frame, qreal scale)
{
    const qreal line = 1 / scale;
    const QRectF box(QPointF(), frame.size);
    const auto shape = rounded(box, frame.radius);
    const auto outside = rounded(box.adjusted(-line, -line, line, line), frame.radius + line);
    painter.fillPath(outside.subtracted(shape), frame.hairline);
    painter.fillPath(shape.subtracted(shape.translated(0, line)), frame.edgeLight);
}

} // namespace

std::vector<SoftShadow> shadowsNamed(const QString &name, Appearance appearance,
                                     const QColor &accent)
{
    if (name == "prominent"_L1)
        return {{1, 2, faded(accent, 0.30F)}, {4, 12, faded(accent, 0.22F)}};
    auto shared = sameInBoth(name);
    if (!shared.empty())
        return shared;
    return appearance == Appearance::Dark ? inDark(name) : inLight(name);
}

int frameMargin(const std::vector<SoftShadow> &shadows)
{
    qreal reach = 1;
    for (const auto &shadow : shadows)
        reach = std::max(reach, shadowReach(shadow));
    return static_cast<int>(std::ceil(reach));
}

int frameCorner(const std::vector<SoftShadow> &shadows, qreal radius)
{
    qreal reach = 1;
    for (const auto &shadow : shadows)
        reach = std::max(reach, shadow.blur + shadow.offset);
    return static_cast<int>(std::ceil(radius + reach));
}

QImage frameImage(const FrameDrawing &frame, qreal scale)
{
    const int margin = frameMargin(frame.shadows);
    const QSizeF whole = (frame.size + QSizeF(2 * margin, 2 * margin)) * scale;
    QImage image(whole.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(margin, margin);
    if (!frame.shadows.empty())
        paintShadows(painter, frame, scale);
    paintLines(painter, frame, scale);
    return image;
}
