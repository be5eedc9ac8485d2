#pragma once

#include <QColor>
#include <QRectF>
#include <QSGTransformNode>

#include <memory>

class QQuickWindow;
class QSGTexture;

/// A nine-patch: a picture divided into three columns and three rows and stretched to a box, so that its corners keep
/// their size. It is a transform node, although it moves nothing, because the software renderer loses the position of a
/// plain node and would draw the later parts at the corner of the window.
class NinePatchNode : public QSGTransformNode
{
public:
    /// Shows a texture with `scale` device pixels per logical pixel. The middle is left empty or filled with `middle`,
    /// which is cheaper than stretching the picture. `box` is in logical pixels.
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
