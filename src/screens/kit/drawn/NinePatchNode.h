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
    /// The same for a picture that is empty inside, except for its corners: between these, only the outer `sides`
    /// logical pixels of it are drawn. Drawing empty pixels would cost as much as others.
    void showFrame(QQuickWindow *window, std::shared_ptr<QSGTexture> texture, qreal scale,
                   const QRectF &box, qreal sides);

private:
    /// What is shown, apart from the texture.
    struct Shape
    {
        qreal scale = 1;
        QRectF box;
        QColor middle;
        /// In logical pixels; as thick as the corners if it is larger than these.
        qreal sides = 0;

        bool operator==(const Shape &) const = default;
    };

    void show(QQuickWindow *window, std::shared_ptr<QSGTexture> texture, const Shape &shape);
    void layOut(QQuickWindow *window);
    void add(QQuickWindow *window, const QRectF &target, const QRectF &source);
    void fill(QQuickWindow *window, const QRectF &target);
    void clear();

    std::shared_ptr<QSGTexture> m_texture;
    Shape m_shape;
};
