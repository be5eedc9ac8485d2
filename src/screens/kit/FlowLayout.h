#pragma once

#include <QList>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// The positions of the children of a wrapping row, and the total size.
struct FlowPlan
{
    /// The top left corners, in the order of the children.
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

/// Arranges children in lines, in order. A child that would exceed `width` starts the next line, unless it is already
/// the first of its line. The total width is that of the widest line, but at most `width`. With an infinite width
/// (`qInf()`) there is a single line.
FlowPlan flowPlan(const QList<QSizeF> &children, qreal width, const FlowSpacing &spacing);

/// A wrapping row: its visible children have their implicit sizes and are arranged in order, one after the other and
/// then on the next line. Its implicit height is the height of all lines, and its implicit width is the width of all
/// children on one line.
class FlowLayout : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal spacing READ spacing WRITE setSpacing NOTIFY spacingChanged FINAL)
    Q_PROPERTY(qreal lineSpacing READ lineSpacing WRITE setLineSpacing NOTIFY spacingChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The children are destroyed later and still notify this object.
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
