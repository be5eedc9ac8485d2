#pragma once

#include "screens/documents/layout/DocumentShape.h"

#include <QObject>
#include <QPointer>
#include <QQmlComponent>

#include <map>

class QQuickItem;

/// The items that show the media blocks of a document. They exist while they are in sight or near.
class MediaItems : public QObject
{
    Q_OBJECT

public:
    explicit MediaItems(QQuickItem &owner) : m_owner(owner) {}
    ~MediaItems() override;

    QQmlComponent *delegate() const { return m_delegate; }
    void setDelegate(QQmlComponent *delegate) { m_delegate = delegate; }
    /// Creates, places and removes items for a part of the document that is in sight.
    void follow(DocumentShape &shape, const QRectF &visible);
    void clear();
    /// The item of a media block, or null.
    QQuickItem *item(int media) const;

Q_SIGNALS:
    /// The item of a media block needs a height.
    void resized(int media, double height);

private:
    void followPiece(DocumentShape &shape, int flow, int number, const QRectF &near);
    QQuickItem *make(const MediaBlock &block, int media);
    static void place(QQuickItem &item, const QRectF &box, const QRectF &viewport);
    void remove(QQuickItem *item);

    QQuickItem &m_owner;
    QPointer<QQmlComponent> m_delegate;
    std::map<int, QPointer<QQuickItem>> m_items;
};
