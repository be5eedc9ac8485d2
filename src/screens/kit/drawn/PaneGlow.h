#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// The two soft lights of a pane, in its top left and bottom right corner, within its rounded box. Painted when the
/// size or the colour changes, and not for each frame.
class PaneGlow : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The colour of the light at its brightest point. It fades to transparent.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    /// The corner radius in logical pixels.
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)

public:
    explicit PaneGlow(QQuickItem *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    qreal radius() const { return m_radius; }
    void setRadius(qreal radius);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void colorChanged();
    void radiusChanged();

private:
    QColor m_color;
    qreal m_radius = 0;
};
