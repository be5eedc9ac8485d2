#pragma once

#include <QColor>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// A chip without its text, drawn as on rows and cards.
class ChipGround : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind MEMBER m_kind NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor outline MEMBER m_outline NOTIFY lookChanged FINAL)
    /// The colour of the label's dot, or of the calendar of a due date.
    Q_PROPERTY(QColor ink MEMBER m_ink NOTIFY lookChanged FINAL)
    /// Where the text begins, and what the chip is wider than its text, in logical pixels.
    Q_PROPERTY(int textStart READ textStart NOTIFY lookChanged FINAL)
    Q_PROPERTY(int frame READ frame NOTIFY lookChanged FINAL)

public:
    enum Kind { Label, Due };
    Q_ENUM(Kind)

    explicit ChipGround(QQuickItem *parent = nullptr);

    int textStart() const;
    int frame() const;

Q_SIGNALS:
    void lookChanged();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    Kind m_kind = Label;
    QColor m_outline;
    QColor m_ink;
};
