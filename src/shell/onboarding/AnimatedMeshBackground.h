#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// A slowly drifting field of colours, at most 30 pictures a second, and none while nobody sees them: the window hidden
/// or covered, or the item invisible. Works with every renderer.
class AnimatedMeshBackground : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The field stands still, always in the same place.
    Q_PROPERTY(bool still READ isStill WRITE setStill NOTIFY stillChanged FINAL)
    /// Pictures are being made.
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
