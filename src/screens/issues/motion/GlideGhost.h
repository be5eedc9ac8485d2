#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

/// A copy of a card that moves from one column to another, drawn above all columns. The card itself would be clipped by
/// its column and covered by the columns after it. The card stays at its position, invisible, while the copy exists, so
/// that no card is left at a wrong position when the animation ends early.
class GlideGhost
{
public:
    /// Creates the copy from the contents of the card. `carrier` becomes its parent.
    GlideGhost(QQuickItem &card, QQmlComponent &component, QQuickItem &carrier);
    ~GlideGhost();
    GlideGhost(const GlideGhost &) = delete;
    GlideGhost &operator=(const GlideGhost &) = delete;

    /// Moves the copy to the position at which the card would be drawn.
    void follow();

private:
    QPointer<QQuickItem> m_card;
    QPointer<QQuickItem> m_carrier;
    QPointer<QQuickItem> m_copy;
};
