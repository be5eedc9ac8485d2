#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// A slowly drifting field of colours, drawn at most 30 times a second. It is not redrawn while it cannot be seen:
/// while the window is hidden or covered, or the item is invisible. Works with every renderer.
class AnimatedMeshBackground : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The field does not move and always shows the same state.
    Q_PROPERTY(bool still READ isStill WRITE setStill NOTIFY stillChanged FINAL)
    /// The animation is running.
    Q_PROPERTY(bool moving READ isMoving NOTIFY movingChanged FINAL)

public:
    explicit AnimatedMeshBackground(QQuickItem *parent = nullptr);

    bool isStill() const { return m_still; }
    void setStill(bool still);
    bool isMoving() const { return m_timer.isActive(); }
    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    void stillChanged();
    void movingChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    void follow(QQuickWindow *window);
    void refreshMoving();
    double time() const;

    bool m_still = false;
    QTimer m_timer;
    QPointer<QQuickWindow> m_window;
};
