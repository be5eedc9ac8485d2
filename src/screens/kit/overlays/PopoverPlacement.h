#pragma once

#include <QObject>
#include <QRectF>
#include <QtQml/qqmlregistration.h>

/// Where popovers stand, so that they stay in their window.
class PopoverPlacement : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// With which of the anchor's edges a popover is in line.
    enum Alignment { Leading, Centre, Trailing };
    Q_ENUM(Alignment)

    /// What lies between a popover and its anchor, and at least between it and the window's edges.
    static constexpr qreal gap = 4;
    static constexpr qreal margin = 8;

    /// The top left corner of a popover of `size` beside `anchor`, in the coordinates of both and of the window: below
    /// it, or above it where there is more room, moved so that it stays in the window.
    static QPointF beside(const QRectF &anchor, const QSizeF &size, const QSizeF &window,
                          PopoverPlacement::Alignment alignment);

    /// The same for QML, told from the anchor's top left corner.
    Q_INVOKABLE QPointF place(const QRectF &anchor, const QSizeF &size, const QSizeF &window,
                              int alignment) const;
};
