#pragma once

#include <QMatrix4x4>
#include <QPointF>
#include <QQuickItem>

/// Draws an item beside its place. The place itself stays what the layout says, so that nothing which ends the motion
/// early can leave the item elsewhere.
class GlideOffset : public QQuickTransform
{
    Q_OBJECT

public:
    /// Of the item, made when it is first wanted.
    static GlideOffset &of(QQuickItem &item);

    QPointF offset() const { return m_offset; }
    /// In logical pixels.
    void setOffset(QPointF offset);

    void applyTo(QMatrix4x4 *matrix) const override;

private:
    explicit GlideOffset(QQuickItem *item);

    QPointF m_offset;
};
