#pragma once

#include <QList>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Where the children of a wrapping row stand, and how large the whole is.
struct FlowPlan
{
    /// Top left corners, in the order of the children.
    QList<QPointF> places;
    QSizeF size;

    bool operator==(const FlowPlan &) const = default;
};

/// The gaps between the children of a line, and between two lines.
struct FlowSpacing
{
    qreal between = 0;
    qreal lines = 0;
};

/// Lays children out in lines, in order: a child that would pass `width` begins the next line, unless it stands first in
/// its line already. The size is as wide as the widest line, but not wider than `width`. No line ends without a width
/// (`qInf()`).
FlowPlan flowPlan(const QList<QSizeF> &children, qreal width, const FlowSpacing &spacing);

/// A wrapping row: its visible children stand in their own implicit sizes, in order, one behind the other and then in the
/// next line. Its implicit height is that of all lines; its implicit width that of all children on one.
class FlowLayout : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal spacing READ spacing WRITE setSpacing NOTIFY spacingChanged FINAL)
    Q_PROPERTY(qreal lineSpacing READ lineSpacing WRITE setLineSpacing NOTIFY spacingChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    /// Its children go after it, and tell of it.
    ~FlowLayout() override;

    qreal spacing() const { return m_spacing.between; }
    void setSpacing(qreal spacing);
    qreal lineSpacing() const { return m_spacing.lines; }
    void setLineSpacing(qreal spacing);

Q_SIGNALS:
    void spacingChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void componentComplete() override;
    void updatePolish() override;

private:
    void changeSpacing(qreal &value, qreal spacing);
    QList<QQuickItem *> shownChildren() const;
    void measure();

    FlowSpacing m_spacing;
};
