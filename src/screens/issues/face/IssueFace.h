#pragma once

#include "model/Issue.h"
#include "screens/issues/face/CaptionLayouts.h"
#include "screens/issues/face/HotSpot.h"
#include "screens/issues/face/IssueStyle.h"
#include "screens/kit/controls/PressArea.h"
#include "screens/kit/images/RemotePicture.h"

#include <QPointer>

/// The base class of rows and cards: one item that computes its layout as a value, draws its texts and its pictures in
/// nodes, reports the hot spot under the pointer, and takes the presses itself.
/// A press on a cell or a check box acts on it if it is also released there. An item for each icon and text
/// would take several times as long to create.
class IssueFace : public PressArea
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The base of rows and cards")
    Q_PROPERTY(Issue issue READ issue WRITE setIssue NOTIFY issueChanged REQUIRED FINAL)
    /// Empty without a due date.
    Q_PROPERTY(QString dueText MEMBER m_dueText NOTIFY contentChanged REQUIRED FINAL)
    Q_PROPERTY(QString dueTooltip MEMBER m_dueTooltip NOTIFY contentChanged REQUIRED FINAL)
    Q_PROPERTY(bool isOverdue MEMBER m_isOverdue NOTIFY contentChanged REQUIRED FINAL)
    Q_PROPERTY(bool isFocused MEMBER m_isFocused NOTIFY marksChanged REQUIRED FINAL)
    Q_PROPERTY(bool isChecked MEMBER m_isChecked NOTIFY marksChanged REQUIRED FINAL)
    Q_PROPERTY(bool isOpen MEMBER m_isOpen NOTIFY marksChanged REQUIRED FINAL)
    /// The menu of the issue is open. The item then looks as if it were under the pointer, which is above the menu.
    Q_PROPERTY(bool hasMenu MEMBER m_hasMenu NOTIFY menuChanged FINAL)
    /// The hot spot under the pointer.
    Q_PROPERTY(HotSpot hotSpot READ hotSpot NOTIFY hotSpotChanged FINAL)
    /// The hot spot takes clicks and is pressed.
    Q_PROPERTY(bool isSpotPressed READ isSpotPressed NOTIFY spotPressedChanged FINAL)

public:
    const Issue &issue() const { return m_issue; }
    void setIssue(const Issue &issue);
    const HotSpot &hotSpot() const { return m_hotSpot; }
    bool isSpotPressed() const { return m_isSpotPressed; }
    /// The drawn texts.
    const CaptionLayouts &captions() const { return m_captions; }

    /// The hot spot at a position.
    Q_INVOKABLE virtual HotSpot spotAt(double x, double y) const = 0;

Q_SIGNALS:
    void issueChanged();
    void styleChanged();
    void contentChanged();
    void marksChanged();
    void menuChanged();
    void planned();
    void hotSpotChanged();
    void spotPressedChanged();
    /// Requests the picker of a kind (`Commands.PickerKind`) at a cell.
    void pickRequested(int kind, QRectF cell);
    /// Requests that the issue is checked, or no longer checked.
    void checkToggled();

protected:
    explicit IssueFace(QQuickItem *parent);

    /// Computes the layout for the present size.
    virtual void makePlan() = 0;
    /// Schedules `makePlan`, because several values change together when a row is reused.
    void planLater();
    void planNow();
    /// Observes another style. Both may be null.
    void follow(IssueStyle *before, IssueStyle *now);
    void showCaptions(const QList<Caption> &captions) { m_captions.set(captions); }

    const QString &dueText() const { return m_dueText; }
    const QString &dueTooltip() const { return m_dueTooltip; }
    bool isOverdue() const { return m_isOverdue; }
    bool isFocused() const { return m_isFocused; }
    bool isChecked() const { return m_isChecked; }
    bool isOpen() const { return m_isOpen; }
    bool hasMenu() const { return m_hasMenu; }
    /// The assignee's name, or the text for no assignee.
    QString assigneeHint() const;
    /// The assignee's photograph, if it is available.
    QImage assigneeFace() const;

    void componentComplete() override;
    void updatePolish() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void setHovered(bool isHovered) override;
    void takeClick(QPointF pressed, QPointF released, Qt::KeyboardModifiers modifiers) override;
    void followPress(QPointF position) override;

private:
    void followPicture();
    void followPointer();
    void showPress();
    void setHotSpot(HotSpot spot);

    Issue m_issue;
    QString m_dueText;
    QString m_dueTooltip;
    bool m_isOverdue = false;
    bool m_isFocused = false;
    bool m_isChecked = false;
    bool m_isOpen = false;
    bool m_hasMenu = false;
    bool m_isSpotPressed = false;
    /// The position of the pointer while it is over this item or presses it.
    QPointF m_pointer;
    HotSpot m_hotSpot;
    CaptionLayouts m_captions;
    /// The assignee's photograph, created when an assignee first has one.
    RemotePicture *m_picture = nullptr;
};
