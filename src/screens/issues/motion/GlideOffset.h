#pragma once

#include <QMatrix4x4>
#include <QPointF>
#include <QQuickItem>

/// Draws an item with an offset. The position of the item remains the one that the layout gives it, so that the item
/// cannot be left at a wrong position when the animation ends early.
class GlideOffset : public QQuickTransform
{
    Q_OBJECT

public:
    /// The offset of the item, created on first use.
    static GlideOffset &of(QQuickItem &item);

    QPointF offset() const { return m_offset; }
    /// Sets the offset in logical pixels.
    void setOffset(QPointF offset);

    void applyTo(QMatrix4x4 *matrix) const override;

private:
    explicit GlideOffset(QQuickItem *item);

    QPointF m_offset;
};
