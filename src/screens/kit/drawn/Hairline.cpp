#include "screens/kit/drawn/Hairline.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

Hairline::Hairline(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setImplicitHeight(thickness());
    connect(this, &Hairline::colorChanged, this, &Hairline::update);
    connect(this, &Hairline::widthChanged, this, &Hairline::update);
}

qreal Hairline::thickness() const
{
    return window() ? 1 / window()->effectiveDevicePixelRatio() : 1;
}

QSGNode *Hairline::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto *line = static_cast<QSGRectangleNode *>(old);
    if (!line)
        line = window()->createRectangleNode();
    line->setRect(0, 0, width(), thickness());
    line->setColor(m_color);
    return line;
}

void Hairline::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change != ItemDevicePixelRatioHasChanged && change != ItemSceneChange)
        return;
    setImplicitHeight(thickness());
    update();
}
