#include "shell/settings/ThemePicture.h"

#include <QPainter>
#include <QPainterPath>

#include <array>

namespace {

constexpr QSizeF PictureSize(92, 60);
constexpr double Corner = 9;
/// The width of the sidebar.
constexpr double Sidebar = 46;
/// The boundary between the light and the dark half runs from here at the top edge to there at the bottom edge.
constexpr double BoundaryAtTop = 62;
constexpr double BoundaryAtBottom = 30;

/// The grey levels of an appearance, 0 to 1, and the colour of its lines of text.
struct Shades
{
    double body;
    double sidebar;
    QColor line;
};

Shades shades(bool isDark)
{
    return isDark ? Shades{0.13, 0.2, QColor(255, 255, 255, 41)}
                  : Shades{0.97, 0.9, QColor(0, 0, 0, 31)};
}

QColor grey(double level)
{
    return QColor::fromRgbF(float(level), float(level), float(level));
}

/// The part of the picture between its left edge and the boundary of the halves, moved to the right by `offset`.
QPainterPath leftHalf(double offset)
{
    QPainterPath half;
    half.addPolygon(QPolygonF({{0, 0},
                               {BoundaryAtTop + offset, 0},
                               {BoundaryAtBottom + offset, PictureSize.height()},
                               {0, PictureSize.height()}}));
    half.closeSubpath();
    return half;
}

void addLine(QPainterPath &path, double x, double y, double width)
{
    path.addRoundedRect(QRectF(x, y, width, 3), 1.5, 1.5);
}

void paintButtons(QPainter &painter, const QPainterPath &area)
{
    constexpr std::array colors{0xFFFF5F57U, 0xFFFEBC2EU, 0xFF28C840U};
    for (size_t i = 0; i < colors.size(); ++i) {
        QPainterPath disc;
        disc.addEllipse(QPointF(7 + 6.5 * double(i), 7), 2, 2);
        painter.fillPath(disc.intersected(area), QColor::fromRgb(colors[i]));
    }
}

/// The part of the small window that is in the area. (Paths are intersected, because the edge of a clip is not smooth.)
void paintWindow(QPainter &painter, const QPainterPath &area, const Shades &shades, QColor accent)
{
    QPainterPath sidebar;
    sidebar.addRect(0, 0, Sidebar, PictureSize.height());
    QPainterPath chosen;
    addLine(chosen, 6, 18, 28);
    QPainterPath lines;
    addLine(lines, 6, 25, 20);
    addLine(lines, 6, 32, 24);
    constexpr std::array<double, 5> widths{32, 26, 30, 20, 28};
    for (size_t i = 0; i < widths.size(); ++i)
        addLine(lines, 53, 10 + 8 * double(i), widths[i]);

    painter.fillPath(area, grey(shades.body));
    painter.fillPath(sidebar.intersected(area), grey(shades.sidebar));
    painter.fillPath(lines.intersected(area), shades.line);
    painter.fillPath(chosen.intersected(area), accent);
    paintButtons(painter, area);
}

} // namespace

ThemePicture::ThemePicture(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setImplicitSize(PictureSize.width(), PictureSize.height());
    setAntialiasing(true);
    connect(this, &ThemePicture::changed, this, [this] { update(); });
}

void ThemePicture::paint(QPainter *painter)
{
    QPainterPath frame;
    frame.addRoundedRect(QRectF(QPointF(), PictureSize), Corner, Corner);
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_mode != Model::AppearanceMode::System)
        return paintWindow(*painter, frame, shades(m_mode == Model::AppearanceMode::Dark),
                           m_accent);
    // The light part extends a little below the dark one, so that nothing shines through between them.
    constexpr double overlap = 0.5;
    paintWindow(*painter, frame.intersected(leftHalf(overlap)), shades(false), m_accent);
    paintWindow(*painter, frame.subtracted(leftHalf(0)), shades(true), m_accent);
}
