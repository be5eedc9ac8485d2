#pragma once

#include <QObject>
#include <QQuickItem>
#include <QRectF>
#include <QtQml/qqmlregistration.h>

/// Computes the positions of popovers and hints, so that they stay within their window, and hints on their page.
class PopoverPlacement : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The edge of the anchor with which a popover is aligned.
    enum Alignment { Leading, Centre, Trailing };
    Q_ENUM(Alignment)

    /// The distance of a popover from its anchor, and its minimum distance from the edges of the window.
    static constexpr qreal gap = 4;
    static constexpr qreal margin = 8;

    /// The top left corner of a popover of `size` beside `anchor`, in the coordinates of both and of the window: below
    /// the anchor, or above it if there is more space, moved so that the popover stays within the window.
    static QPointF beside(const QRectF &anchor, const QSizeF &size, const QSizeF &window,
                          PopoverPlacement::Alignment alignment);

    /// The lower end of the part of an item that the items around it do not clip, in the coordinates of the item.
    Q_INVOKABLE qreal lowerEnd(const QQuickItem *item) const;
    /// The same for QML, relative to the top left corner of the anchor.
    Q_INVOKABLE QPointF place(const QRectF &anchor, const QSizeF &size, const QSizeF &window,
                              int alignment) const;
};
