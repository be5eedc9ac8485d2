#include "screens/attachments/preview/PictureCanvas.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr double LargestZoom = 16;
/// The factor of one notch of the wheel, of 120 eighths of a degree.
constexpr double NotchFactor = 1.2;
constexpr double Notch = 120;

double clampedTo(double centre, double picture, double view)
{
    // A side that is smaller than the view stays in the middle.
    const double half = view / 2;
    return 2 * half >= picture ? picture / 2 : std::clamp(centre, half, picture - half);
}

PictureViewport within(PictureViewport viewport, QSizeF picture, QSizeF view)
{
    viewport.centre = {
        clampedTo(viewport.centre.x(), picture.width(), view.width() / viewport.zoom),
        clampedTo(viewport.centre.y(), picture.height(), view.height() / viewport.zoom)};
    return viewport;
}

double zoomOf(const PictureViewport &viewport, QSizeF picture, QSizeF view)
{
    return viewport.zoom > 0 ? viewport.zoom : fittingZoom(picture, view);
}

QPointF centreOf(const PictureViewport &viewport, QSizeF picture)
{
    return viewport.zoom > 0 ? viewport.centre : QPointF(picture.width() / 2, picture.height() / 2);
}

} // namespace

double fittingZoom(QSizeF picture, QSizeF view)
{
    if (picture.isEmpty() || view.isEmpty())
        return 1;
    return std::min({1.0, view.width() / picture.width(), view.height() / picture.height()});
}

PictureViewport zoomed(PictureViewport viewport, double factor, QPointF at, QSizeF picture,
                       QSizeF view)
{
    const double fitting = fittingZoom(picture, view);
    const double before = zoomOf(viewport, picture, view);
    const double zoom = std::clamp(before * factor, fitting, std::max(LargestZoom, fitting));
    if (zoom <= fitting)
        return {};
    const QPointF fromMiddle = at - QPointF(view.width() / 2, view.height() / 2);
    const QPointF point = centreOf(viewport, picture) + fromMiddle / before;
    return within({zoom, point - fromMiddle / zoom}, picture, view);
}

PictureViewport panned(PictureViewport viewport, QPointF by, QSizeF picture, QSizeF view)
{
    if (viewport.zoom <= 0)
        return viewport;
    viewport.centre -= by / viewport.zoom;
    return within(viewport, picture, view);
}

PictureCanvas::PictureCanvas(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

void PictureCanvas::setPreview(PicturePreview *preview)
{
    if (m_preview == preview)
        return;
    if (m_preview)
        m_preview->disconnect(this);
    m_preview = preview;
    if (m_preview) {
        connect(m_preview, &PicturePreview::frameChanged, this, [this] { update(); });
        connect(m_preview, &PicturePreview::urlChanged, this, &PictureCanvas::fit);
        connect(m_preview, &PicturePreview::changed, this, &PictureCanvas::viewportChanged);
    }
    Q_EMIT previewChanged();
    update();
}

QSizeF PictureCanvas::pictureSize() const
{
    return m_preview ? QSizeF(m_preview->size()) : QSizeF();
}

double PictureCanvas::zoom() const
{
    return zoomOf(m_viewport, pictureSize(), size());
}

void PictureCanvas::setViewport(const PictureViewport &viewport)
{
    if (m_viewport == viewport)
        return;
    m_viewport = viewport;
    Q_EMIT viewportChanged();
    update();
}

void PictureCanvas::zoomBy(double factor)
{
    setViewport(zoomed(m_viewport, factor, boundingRect().center(), pictureSize(), size()));
}

void PictureCanvas::panBy(double x, double y)
{
    setViewport(panned(m_viewport, {x, y}, pictureSize(), size()));
}

void PictureCanvas::fit()
{
    setViewport({});
}

void PictureCanvas::showActualSize()
{
    zoomBy(1 / zoom());
}

void PictureCanvas::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    if (m_viewport.zoom > 0)
        setViewport(within(m_viewport, pictureSize(), now.size()));
    Q_EMIT viewportChanged();
    update();
}

void PictureCanvas::wheelEvent(QWheelEvent *event)
{
    const double factor = std::pow(NotchFactor, event->angleDelta().y() / Notch);
    setViewport(zoomed(m_viewport, factor, event->position(), pictureSize(), size()));
    event->accept();
}

void PictureCanvas::mousePressEvent(QMouseEvent *event)
{
    m_dragged = event->position();
    event->accept();
}

void PictureCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF by = event->position() - m_dragged;
    m_dragged = event->position();
    panBy(by.x(), by.y());
}

void PictureCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    const double factor = isFitted() ? 1 / zoom() : 0;
    setViewport(zoomed(m_viewport, factor, event->position(), pictureSize(), size()));
}

void PictureCanvas::paint(QPainter *painter)
{
    if (!m_preview || m_preview->levels().isEmpty() || pictureSize().isEmpty())
        return;
    const double zoom = this->zoom();
    const QSizeF drawn = pictureSize() * zoom;
    const double density = painter->transform().m11();
    // The smallest level that still has a pixel for each one of the screen.
    const auto &levels = m_preview->levels();
    const auto enough =
        std::ranges::find_if(levels.rbegin(), levels.rend(), [&](const QImage &level) {
            return level.width() >= drawn.width() * density;
        });
    const QImage &image = enough == levels.rend() ? levels.first() : *enough;
    const QPointF corner = boundingRect().center() - centreOf(m_viewport, pictureSize()) * zoom;
    // Enlarged pixels are shown as squares, so that details can be told apart.
    painter->setRenderHint(QPainter::SmoothPixmapTransform, zoom < 4);
    painter->setClipRect(boundingRect());
    painter->drawImage(QRectF(corner, drawn), image);
}
