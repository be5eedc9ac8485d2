#pragma once

#include <QColor>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// A horizontal line of one device pixel at every scale factor. (The software renderer draws a Rectangle of that height
/// one logical pixel high.) The line is at the top of the item. The implicit height is that of the line, in logical
/// pixels.
class Hairline : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged FINAL)

public:
    explicit Hairline(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void colorChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    qreal thickness() const;

    QColor m_color;
};
