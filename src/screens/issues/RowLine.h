#pragma once

#include "model/Issue.h"
#include "screens/issues/RowCaption.h"
#include "screens/issues/RowPlan.h"
#include "screens/issues/RowSpot.h"
#include "screens/issues/RowStyle.h"
#include "screens/kit/images/RemotePicture.h"

#include <QPointer>
#include <QQuickItem>

/// The base of a row: plans its columns and draws all that is not text in one node, for a row made of one item per icon
/// takes several times as long to make. Icons share textures. Texts stand in QML at the places planned.
class RowLine : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Issue issue READ issue WRITE setIssue NOTIFY issueChanged REQUIRED FINAL)
    Q_PROPERTY(RowStyle *style READ style WRITE setStyle NOTIFY styleChanged REQUIRED FINAL)
    /// Empty without a due date.
    Q_PROPERTY(QString dueText MEMBER m_dueText NOTIFY contentChanged REQUIRED FINAL)
    Q_PROPERTY(QString dueTooltip MEMBER m_dueTooltip NOTIFY contentChanged REQUIRED FINAL)
    Q_PROPERTY(bool isOverdue MEMBER m_isOverdue NOTIFY contentChanged REQUIRED FINAL)
    /// The row ends with the latest event of a recap.
    Q_PROPERTY(bool hasActivity MEMBER m_hasActivity NOTIFY contentChanged FINAL)
    Q_PROPERTY(RowPlan plan READ plan NOTIFY planned FINAL)
    Q_PROPERTY(int captionCount READ captionCount NOTIFY planned FINAL)
    Q_PROPERTY(bool isHovered READ isHovered NOTIFY hoverChanged FINAL)
    /// What is under the pointer.
    Q_PROPERTY(RowSpot hotSpot READ hotSpot NOTIFY hotSpotChanged FINAL)

public:
    explicit RowLine(QQuickItem *parent = nullptr);

    const Issue &issue() const { return m_issue; }
    void setIssue(const Issue &issue);
    RowStyle *style() const { return m_style; }
    void setStyle(RowStyle *style);
    const RowPlan &plan() const { return m_plan; }
    int captionCount() const { return int(m_captions.size()); }
    bool isHovered() const { return m_isHovered; }
    const RowSpot &hotSpot() const { return m_hotSpot; }

    /// The caption of that number, which may be out of date while the row changes; an empty one if there is none.
    Q_INVOKABLE RowCaption captionAt(int index) const { return m_captions.value(index); }

Q_SIGNALS:
    void issueChanged();
    void styleChanged();
    void contentChanged();
    void planned();
    void hoverChanged();
    void hotSpotChanged();

protected:
    void componentComplete() override;
    void updatePolish() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    void planLater();
    void makePlan();
    void followPicture();
    RowSpot spotAt(double x) const;
    void setHotSpot(RowSpot spot);

    Issue m_issue;
    QPointer<RowStyle> m_style;
    QString m_dueText;
    QString m_dueTooltip;
    bool m_isOverdue = false;
    bool m_hasActivity = false;
    RowPlan m_plan;
    QList<RowCaption> m_captions;
    bool m_isHovered = false;
    RowSpot m_hotSpot;
    /// The assignee's, once there was one who has one.
    RemotePicture *m_picture = nullptr;
};
