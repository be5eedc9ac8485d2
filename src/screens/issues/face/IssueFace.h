#pragma once

#include "model/Issue.h"
#include "screens/issues/face/CaptionTexts.h"
#include "screens/issues/face/HotSpot.h"
#include "screens/issues/face/IssueStyle.h"
#include "screens/kit/images/RemotePicture.h"

#include <QPointer>
#include <QQuickItem>

/// The base of a row and of a card: one item that plans its places as a value, draws all that is not text in nodes whose
/// textures all equal pictures share, and tells what is under the pointer. One made of an item per icon takes several
/// times as long to make.
class IssueFace : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The base of rows and cards")
    Q_PROPERTY(Issue issue READ issue WRITE setIssue NOTIFY issueChanged REQUIRED FINAL)
    /// Empty without a due date.
    Q_PROPERTY(QString dueText MEMBER m_dueText NOTIFY contentChanged REQUIRED FINAL)
    Q_PROPERTY(QString dueTooltip MEMBER m_dueTooltip NOTIFY contentChanged REQUIRED FINAL)
    Q_PROPERTY(bool isOverdue MEMBER m_isOverdue NOTIFY contentChanged REQUIRED FINAL)
    Q_PROPERTY(bool isHovered READ isHovered NOTIFY hoverChanged FINAL)
    /// What is under the pointer.
    Q_PROPERTY(HotSpot hotSpot READ hotSpot NOTIFY hotSpotChanged FINAL)

public:
    const Issue &issue() const { return m_issue; }
    void setIssue(const Issue &issue);
    bool isHovered() const { return m_isHovered; }
    const HotSpot &hotSpot() const { return m_hotSpot; }

    /// What a place on it says and does.
    Q_INVOKABLE virtual HotSpot spotAt(double x, double y) const = 0;

Q_SIGNALS:
    void issueChanged();
    void styleChanged();
    void contentChanged();
    void planned();
    void hoverChanged();
    void hotSpotChanged();
    /// The picker of a kind (`PropertyOptions::Kind`) is wanted at a cell.
    void pickRequested(int kind, QRectF cell);

protected:
    explicit IssueFace(QQuickItem *parent);

    /// Finds the places of everything anew, at its present size.
    virtual void makePlan() = 0;
    /// Several values change together when a row is used again.
    void planLater();
    void planNow();
    /// Follows another style; either may be absent.
    void follow(IssueStyle *before, IssueStyle *now);
    void showCaptions(const QList<Caption> &captions, const IssueStyle &style);

    const QString &dueText() const { return m_dueText; }
    const QString &dueTooltip() const { return m_dueTooltip; }
    bool isOverdue() const { return m_isOverdue; }
    /// The assignee's name, or that there is none.
    QString assigneeHint() const;
    /// The assignee's own picture, if it is there.
    QImage assigneeFace() const;

    void componentComplete() override;
    void updatePolish() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;

private:
    void followPicture();
    void followPointer();
    void setHovered(bool isHovered);
    void setHotSpot(HotSpot spot);

    Issue m_issue;
    QString m_dueText;
    QString m_dueTooltip;
    bool m_isOverdue = false;
    bool m_isHovered = false;
    /// Where the pointer is, while it is over this.
    QPointF m_pointer;
    HotSpot m_hotSpot;
    CaptionTexts m_captions;
    /// The assignee's, once there was one who has one.
    RemotePicture *m_picture = nullptr;
};
