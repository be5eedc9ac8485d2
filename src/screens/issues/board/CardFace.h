#pragma once

#include "screens/issues/board/CardGround.h"
#include "screens/issues/board/CardPlan.h"
#include "screens/issues/board/CardStyle.h"
#include "screens/issues/face/IssueFace.h"

#include <QVariantAnimation>

/// The base class of a board card: its background, a line with type, key and assignee, the summary, and a line with
/// priority, due date and labels.
class CardFace : public IssueFace
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(CardStyle *style READ style WRITE setStyle NOTIFY styleChanged REQUIRED FINAL)
    /// The cells whose values can be changed by a click.
    Q_PROPERTY(QRectF priorityCell READ priorityCell NOTIFY planned FINAL)
    Q_PROPERTY(QRectF assigneeCell READ assigneeCell NOTIFY planned FINAL)

public:
    explicit CardFace(QQuickItem *parent = nullptr);

    CardStyle *style() const { return m_style; }
    void setStyle(CardStyle *style);
    QRectF priorityCell() const { return m_plan.priority; }
    QRectF assigneeCell() const { return m_plan.assignee; }

    Q_INVOKABLE HotSpot spotAt(double x, double y) const override;

protected:
    void makePlan() override;
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    void followLift();
    CardGround ground() const;

    QPointer<CardStyle> m_style;
    CardPlan m_plan;
    /// The elevation of the card, from 0 (at rest) to 1 (raised).
    double m_lift = 0;
    /// Created when the card is first raised.
    QVariantAnimation *m_rise = nullptr;
};
