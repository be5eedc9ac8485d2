#pragma once

#include "screens/issues/face/IssueFace.h"
#include "screens/issues/list/RowPlan.h"
#include "screens/issues/list/RowStyle.h"

/// The base class of a row: an issue on one line, in columns.
class RowLine : public IssueFace
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(RowStyle *style READ style WRITE setStyle NOTIFY styleChanged REQUIRED FINAL)
    Q_PROPERTY(RowPlan plan READ plan NOTIFY planned FINAL)

public:
    explicit RowLine(QQuickItem *parent = nullptr) : IssueFace(parent) {}

    RowStyle *style() const { return m_style; }
    void setStyle(RowStyle *style);
    const RowPlan &plan() const { return m_plan; }

    Q_INVOKABLE HotSpot spotAt(double x, double y) const override;

protected:
    void makePlan() override;
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    QPointer<RowStyle> m_style;
    RowPlan m_plan;
};
