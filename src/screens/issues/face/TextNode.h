#pragma once

#include <QPointF>

#include <memory>

class QColor;
class QQuickItem;
class QSGNode;
class QTextLayout;

/// The scene graph node that draws laid-out texts. Qt has such a node in its public interface from version 6.7 on. In
/// earlier versions it is the node that Qt's own text items use.
namespace TextNode {

/// A node without texts, which `item` returns from `updatePaintNode` or adds to the node that it returns.
std::unique_ptr<QSGNode> make(QQuickItem &item);
/// Adds a text whose layout begins at `corner`, in logical pixels.
void add(QSGNode &node, QPointF corner, QTextLayout &layout, const QColor &color);
/// Removes all texts.
void clear(QSGNode &node);

} // namespace TextNode
