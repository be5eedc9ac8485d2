#include "screens/documents/view/MediaItems.h"

#include <QQmlContext>
#include <QQmlInfo>
#include <QQuickItem>

#include <cmath>
#include <memory>

MediaItems::~MediaItems() = default;

void MediaItems::follow(DocumentShape &shape, const QRectF &visible)
{
    if (!m_delegate || shape.blocks().media.empty())
        return;
    const QRectF near =
        visible.isEmpty() ? QRectF() : visible.adjusted(0, -visible.height(), 0, visible.height());
    const auto &flows = shape.blocks().flows;
    for (int flow = 0; flow < int(flows.size()); ++flow) {
        const auto &pieces = flows[size_t(flow)].pieces;
        for (int i = 0; i < int(pieces.size()); ++i) {
            if (pieces[size_t(i)].kind == Piece::Kind::Media)
                followPiece(shape, flow, i, near);
        }
    }
}

void MediaItems::followPiece(DocumentShape &shape, int flow, int number, const QRectF &near)
{
    const auto &blocks = shape.blocks();
    const int media = blocks.flows[size_t(flow)].pieces[size_t(number)].index;
    const QRectF box = shape.pieceBox(flow, number);
    const bool isNear = !near.isEmpty() && box.top() <= near.bottom() && box.bottom() >= near.top();
    if (!isNear) {
        if (const auto known = m_items.find(media); known != m_items.end()) {
            remove(known->second);
            m_items.erase(known);
        }
        return;
    }
    if (!m_items[media])
        m_items[media] = make(blocks.media[size_t(media)], media);
    const int row = blocks.flows[size_t(flow)].row;
    QRectF viewport;
    if (row >= 0)
        viewport =
            shape.scroller(blocks.tables[size_t(blocks.rows[size_t(row)].table)].scroller).viewport;
    // The item may have changed the height of its block, and thereby the place of nothing above it.
    if (QQuickItem *item = m_items[media])
        place(*item, shape.pieceBox(flow, number), viewport);
}

QQuickItem *MediaItems::make(const MediaBlock &block, int media)
{
    std::unique_ptr<QObject> made(m_delegate->beginCreate(m_delegate->creationContext()));
    auto *item = qobject_cast<QQuickItem *>(made.get());
    if (!item) {
        qmlWarning(&m_owner) << m_delegate->errorString();
        return nullptr;
    }
    made.release()->setParent(this);
    m_delegate->setInitialProperties(item, {{QStringLiteral("block"), QVariant::fromValue(block)}});
    item->setParentItem(&m_owner);
    m_delegate->completeCreate();
    const auto report = [this, media, item] {
        Q_EMIT resized(media, std::ceil(std::max(0.0, item->implicitHeight())));
    };
    connect(item, &QQuickItem::implicitHeightChanged, this, report);
    report();
    return item;
}

/// An item of a table that is scrolled out of it is hidden.
void MediaItems::place(QQuickItem &item, const QRectF &box, const QRectF &viewport)
{
    item.setWidth(box.width());
    item.setHeight(box.height());
    item.setPosition(box.topLeft());
    item.setVisible(viewport.isNull() ||
                    (box.left() >= viewport.left() && box.right() <= viewport.right() + 1));
}

void MediaItems::remove(QQuickItem *item)
{
    if (!item)
        return;
    // Deleted later, because the item's own code may be what changes the document.
    item->disconnect(this);
    item->setVisible(false);
    item->setParentItem(nullptr);
    item->deleteLater();
}

void MediaItems::clear()
{
    for (const auto &[media, item] : m_items)
        remove(item);
    m_items.clear();
}

QQuickItem *MediaItems::item(int media) const
{
    const auto known = m_items.find(media);
    return known == m_items.end() ? nullptr : known->second.get();
}
