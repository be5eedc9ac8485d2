#include "screens/kit/scrolling/RepaintArea.h"

#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QSGSimpleRectNode>

#include <utility>

RepaintArea::RepaintArea(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void RepaintArea::setView(QQuickItem *view)
{
    if (m_view == view)
        return;
    if (m_view)
        m_view->disconnect(this);
    m_view = view;
    if (view) {
        connect(view, SIGNAL(contentXChanged()), this, SLOT(update()));
        connect(view, SIGNAL(contentYChanged()), this, SLOT(update()));
    }
    Q_EMIT viewChanged();
}

void RepaintArea::setAnimating(bool isAnimating)
{
    if (std::exchange(m_isAnimating, isAnimating) == isAnimating)
        return;
    followFrames();
    Q_EMIT animatingChanged();
}

void RepaintArea::followFrames()
{
    disconnect(m_frames);
    // The last frame of an animation moves the items too.
    update();
    if (m_isAnimating && window())
        m_frames = connect(window(), &QQuickWindow::afterAnimating, this, &QQuickItem::update);
}

void RepaintArea::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange)
        followFrames();
}

QSGNode *RepaintArea::updatePaintNode(QSGNode *former, UpdatePaintNodeData *)
{
    if (window()->rendererInterface()->graphicsApi() != QSGRendererInterface::Software)
        return nullptr;
    auto *node = static_cast<QSGSimpleRectNode *>(former);
    if (!node)
        node = std::make_unique<QSGSimpleRectNode>().release();
    node->setRect(boundingRect());
    node->setColor(Qt::transparent);
    // A change of the node is what makes the renderer draw its area again.
    node->markDirty(QSGNode::DirtyMaterial);
    return node;
}
