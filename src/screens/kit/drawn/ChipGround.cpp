#include "screens/kit/drawn/ChipGround.h"

#include "screens/kit/drawn/ChipPictures.h"
#include "screens/kit/painters/ChipPainter.h"

#include <memory>

ChipGround::ChipGround(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setImplicitHeight(Metrics::chipHeight);
    connect(this, &ChipGround::lookChanged, this, &ChipGround::update);
}

int ChipGround::textStart() const
{
    return m_kind == Due ? ChipLayout::dueText : ChipLayout::labelText;
}

int ChipGround::frame() const
{
    return m_kind == Due ? ChipLayout::dueFrame : ChipLayout::labelFrame;
}

void ChipGround::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        update();
}

void ChipGround::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}

QSGNode *ChipGround::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (size().isEmpty()) {
        const std::unique_ptr<QSGNode> dropped(old);
        return nullptr;
    }
    // The scene graph owns the node of an item.
    auto *node = old ? static_cast<PictureNode *>(old) : std::make_unique<PictureNode>().release();
    const auto picture = m_kind == Due ? dueBadgePicture(size(), m_outline, m_ink)
                                       : labelChipPicture(size(), m_outline, m_ink);
    node->show(window(), {picture});
    return node;
}
