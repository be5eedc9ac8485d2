#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A dashed outline, 1 wide, with rounded corners, inside the edge of the item.
class DashedBox : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The radius of the corners, in logical pixels.
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)

public:
    explicit DashedBox(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    qreal m_radius = 0;
    QColor m_color;
};
