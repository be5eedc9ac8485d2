#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

/// A copy of a card on its way from one column to another, drawn above all of them: the card itself is cut off where its
/// column ends, and lies below the columns behind it. The card stays at its place, unseen, for as long as its copy lives,
/// so that whatever ends the motion leaves no card elsewhere.
class GlideGhost
{
public:
    /// The component makes the copy from what the card shows; it stands in `carrier`.
    GlideGhost(QQuickItem &card, QQmlComponent &component, QQuickItem &carrier);
    ~GlideGhost();
    GlideGhost(const GlideGhost &) = delete;
    GlideGhost &operator=(const GlideGhost &) = delete;

    /// Goes to where the card would be seen.
    void follow();

private:
    QPointer<QQuickItem> m_card;
    QPointer<QQuickItem> m_carrier;
    QPointer<QQuickItem> m_copy;
};
