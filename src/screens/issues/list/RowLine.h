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
    /// The relative date of the last change.
    Q_PROPERTY(QString updatedText MEMBER m_updatedText NOTIFY contentChanged REQUIRED FINAL)
    /// The latest event takes the place of the date. It is shown by an item of its own.
    Q_PROPERTY(bool showsEvent MEMBER m_showsEvent NOTIFY contentChanged FINAL)

public:
    explicit RowLine(QQuickItem *parent = nullptr);

    RowStyle *style() const { return m_style; }
    void setStyle(RowStyle *style);
    const RowPlan &plan() const { return m_plan; }

    Q_INVOKABLE HotSpot spotAt(double x, double y) const override;

protected:
    void makePlan() override;
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    QColor fill() const;

    QPointer<RowStyle> m_style;
    QString m_updatedText;
    bool m_showsEvent = false;
    RowPlan m_plan;
};
