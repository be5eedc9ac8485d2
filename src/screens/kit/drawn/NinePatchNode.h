#pragma once

#include <QColor>
#include <QRectF>
#include <QSGTransformNode>

#include <memory>

class QQuickWindow;
class QSGTexture;

/// A picture cut in three across and in three down and stretched over a box, so that its corners keep their size. A node
/// of transformation, though it moves nothing: the software renderer forgets where a plain node stands, and would draw
/// the parts that come later at the window's corner.
class NinePatchNode : public QSGTransformNode
{
public:
    /// Takes a texture of `scale` device pixels to a logical one, drawn in the middle of which is nothing, or `middle`,
    /// which is cheaper to fill than to stretch. `box` is in logical pixels.
    void show(QQuickWindow *window, std::shared_ptr<QSGTexture> texture, qreal scale,
              const QRectF &box, const QColor &middle = Qt::transparent);

private:
    void layOut(QQuickWindow *window, qreal scale);
    void add(QQuickWindow *window, const QRectF &target, const QRectF &source);
    void fill(QQuickWindow *window, const QRectF &target);
    void clear();

    std::shared_ptr<QSGTexture> m_texture;
    QRectF m_box;
    QColor m_middle;
};
