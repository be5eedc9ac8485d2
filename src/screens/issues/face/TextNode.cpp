#include "screens/issues/face/TextNode.h"

#include <QQuickWindow>
#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
#include <QSGTextNode>
#else
#include <private/qquicktextnode_p.h>
#endif

namespace TextNode {

#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)

std::unique_ptr<QSGNode> make(QQuickItem &item)
{
    std::unique_ptr<QSGTextNode> node(item.window()->createTextNode());
    if (QQuickWindow::textRenderType() == QQuickWindow::NativeTextRendering)
        node->setRenderType(QSGTextNode::NativeRendering);
    return node;
}

void add(QSGNode &node, QPointF corner, QTextLayout &layout, const QColor &color)
{
    auto &texts = static_cast<QSGTextNode &>(node);
    texts.setColor(color);
    texts.addTextLayout(corner, &layout);
}

void clear(QSGNode &node)
{
    static_cast<QSGTextNode &>(node).clear();
}

#else

std::unique_ptr<QSGNode> make(QQuickItem &item)
{
    auto node = std::make_unique<QQuickTextNode>(&item);
    node->setUseNativeRenderer(QQuickWindow::textRenderType() == QQuickWindow::NativeTextRendering);
    return node;
}

void add(QSGNode &node, QPointF corner, QTextLayout &layout, const QColor &color)
{
    static_cast<QQuickTextNode &>(node).addTextLayout(corner, &layout, color);
}

void clear(QSGNode &node)
{
    static_cast<QQuickTextNode &>(node).deleteContent();
}

#endif

} // namespace TextNode
