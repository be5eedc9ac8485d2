#pragma once

#include "screens/kit/painters/FramePainter.h"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// The edge effects of glass: shadow, hairline and light upper edge, drawn above and around the item as a stretched
/// picture whose empty middle is omitted. It works with both renderers, at every scale, without layers or shaders.
/// Place it in the surface with `anchors.fill: parent`, after the fill.
class GlassFrame : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed FINAL)
    /// One of none, card, cardHover, palette, onboarding, mention, capsule, pane, bar, popover, sheet or prominent.
    Q_PROPERTY(QString shadow MEMBER m_shadow NOTIFY changed FINAL)
    /// Selects the shadows of the dark appearance.
    Q_PROPERTY(bool dark MEMBER m_dark NOTIFY changed FINAL)
    /// The line of one device pixel around the box.
    Q_PROPERTY(QColor hairline MEMBER m_hairline NOTIFY changed FINAL)
    /// The line of one device pixel inside the upper edge.
    Q_PROPERTY(QColor edgeLight MEMBER m_edgeLight NOTIFY changed FINAL)
    /// The colour of the shadow "prominent".
    Q_PROPERTY(QColor accent MEMBER m_accent NOTIFY changed FINAL)

public:
    explicit GlassFrame(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    /// The smallest frame that has the corners of this box.
    FrameDrawing drawing() const;

    qreal m_radius = 0;
    QString m_shadow;
    bool m_dark = false;
    QColor m_hairline = Qt::transparent;
    QColor m_edgeLight = Qt::transparent;
    QColor m_accent;
};
