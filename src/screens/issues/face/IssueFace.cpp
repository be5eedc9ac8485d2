#include "screens/issues/face/IssueFace.h"

#include "screens/kit/images/ImageLoader.h"

#include <QHoverEvent>

using namespace Qt::StringLiterals;

IssueFace::IssueFace(QQuickItem *parent) : PressArea(parent)
{
    setFlag(ItemHasContents);
    connect(this, &IssueFace::pressedChanged, this, &IssueFace::showPress);
    connect(this, &IssueFace::contentChanged, this, &IssueFace::planLater);
    connect(this, &IssueFace::marksChanged, this, &IssueFace::update);
}

void IssueFace::setIssue(const Issue &issue)
{
    if (m_issue == issue)
        return;
    if (m_issue.key != issue.key)
        forgetPress();
    m_issue = issue;
    followPicture();
    planLater();
    Q_EMIT issueChanged();
}

void IssueFace::follow(IssueStyle *before, IssueStyle *now)
{
    if (before)
        before->disconnect(this);
    if (now)
        connect(now, &IssueStyle::changed, this, &IssueFace::planLater);
    planLater();
    Q_EMIT styleChanged();
}

void IssueFace::planLater()
{
    if (isComponentComplete())
        polish();
}

void IssueFace::planNow()
{
    if (!isComponentComplete())
        return;
    makePlan();
    if (isHovered())
        followPointer();
    update();
    Q_EMIT planned();
}

void IssueFace::componentComplete()
{
    QQuickItem::componentComplete();
    planNow();
}

void IssueFace::updatePolish()
{
    planNow();
}

QString IssueFace::assigneeHint() const
{
    return m_issue.assignee ? m_issue.assignee->name : u"Non assigné"_s;
}

QImage IssueFace::assigneeFace() const
{
    return m_picture && m_picture->isLoaded() ? ImageLoader::shared().cached(m_picture->address())
                                              : QImage();
}

void IssueFace::followPicture()
{
    const QUrl address = m_issue.assignee ? m_issue.assignee->avatarURL.value_or(QUrl()) : QUrl();
    if (!m_picture && !address.isEmpty()) {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): this owns it, as its parent
        m_picture = new RemotePicture(this);
        connect(m_picture, &RemotePicture::sourceChanged, this, &IssueFace::update);
    }
    if (m_picture)
        m_picture->setAddress(address);
}

void IssueFace::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        planNow();
}

void IssueFace::itemChange(ItemChange change, const ItemChangeData &data)
{
    PressArea::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}

void IssueFace::hoverEnterEvent(QHoverEvent *event)
{
    m_pointer = event->position();
    followPointer();
    PressArea::hoverEnterEvent(event);
}

void IssueFace::hoverMoveEvent(QHoverEvent *event)
{
    PressArea::hoverMoveEvent(event);
    m_pointer = event->position();
    followPointer();
}

void IssueFace::setHovered(bool isHovered)
{
    if (!isHovered)
        setHotSpot({});
    PressArea::setHovered(isHovered);
}

void IssueFace::takeClick(QPointF pressed, QPointF released, Qt::KeyboardModifiers modifiers)
{
    const HotSpot spot = spotAt(pressed.x(), pressed.y());
    if (!spot.takesClicks())
        PressArea::takeClick(pressed, released, modifiers);
    else if (spot.holds(released) && spot.isCheck)
        Q_EMIT checkToggled();
    else if (spot.holds(released))
        Q_EMIT pickRequested(spot.kind(), spot.box);
}

void IssueFace::followPress(QPointF position)
{
    m_pointer = position;
    followPointer();
}

void IssueFace::followPointer()
{
    setHotSpot(spotAt(m_pointer.x(), m_pointer.y()));
}

void IssueFace::setHotSpot(HotSpot spot)
{
    if (m_hotSpot == spot)
        return;
    m_hotSpot = std::move(spot);
    showPress();
    update();
    Q_EMIT hotSpotChanged();
}

void IssueFace::showPress()
{
    const QPointF start = pressStart();
    const bool isPressedThere =
        isPressed() && m_hotSpot.takesClicks() && spotAt(start.x(), start.y()) == m_hotSpot;
    if (std::exchange(m_isSpotPressed, isPressedThere) == isPressedThere)
        return;
    update();
    Q_EMIT spotPressedChanged();
}
