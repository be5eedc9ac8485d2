#pragma once

#include "screens/attachments/preview/PicturePreview.h"

#include <QPointer>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// The visible part of a picture: how large it is drawn, and which of its points is in the middle.
struct PictureViewport
{
    /// Logical pixels for each pixel of the picture; 0 fits the picture into the view.
    double zoom = 0;
    /// In pixels of the picture.
    QPointF centre;

    bool operator==(const PictureViewport &) const = default;
};

/// The zoom at which a picture fits into a view; a small picture is not enlarged.
double fittingZoom(QSizeF picture, QSizeF view);
/// The viewport after a change of the zoom by a factor, with the point `at` of the view staying on the same point of the
/// picture. The zoom stays between the fitting one and 16. Zooming out to the fitting one fits the picture again.
PictureViewport zoomed(PictureViewport viewport, double factor, QPointF at, QSizeF picture,
                       QSizeF view);
/// The viewport moved by a distance in logical pixels, as far as the picture reaches.
PictureViewport panned(PictureViewport viewport, QPointF by, QSizeF picture, QSizeF view);

/// Draws a picture fitted, or zoomed and moved with the pointer: the wheel zooms at the pointer, a drag moves, a double
/// click alternates between fitting and the size of the picture.
class PictureCanvas : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        PicturePreview *preview READ preview WRITE setPreview NOTIFY previewChanged FINAL REQUIRED)
    /// Logical pixels for each pixel of the picture, at present.
    Q_PROPERTY(double zoom READ zoom NOTIFY viewportChanged FINAL)
    Q_PROPERTY(bool isFitted READ isFitted NOTIFY viewportChanged FINAL)

public:
    explicit PictureCanvas(QQuickItem *parent = nullptr);

    PicturePreview *preview() const { return m_preview; }
    void setPreview(PicturePreview *preview);
    double zoom() const;
    bool isFitted() const { return m_viewport.zoom == 0; }

    Q_INVOKABLE void zoomBy(double factor);
    Q_INVOKABLE void panBy(double x, double y);
    /// Fits the picture into the view.
    Q_INVOKABLE void fit();
    /// Shows each pixel of the picture as one logical pixel.
    Q_INVOKABLE void showActualSize();

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void previewChanged();
    void viewportChanged();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QSizeF pictureSize() const;
    void setViewport(const PictureViewport &viewport);

    QPointer<PicturePreview> m_preview;
    PictureViewport m_viewport;
    QPointF m_dragged;
};
