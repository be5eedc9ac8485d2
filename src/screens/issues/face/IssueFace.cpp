#include "screens/issues/face/IssueFace.h"

#include "screens/kit/images/ImageLoader.h"

#include <QHoverEvent>

using namespace Qt::StringLiterals;

IssueFace::IssueFace(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setAcceptHoverEvents(true);
    connect(this, &IssueFace::contentChanged, this, &IssueFace::planLater);
}

void IssueFace::setIssue(const Issue &issue)
{
    if (m_issue == issue)
        return;
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
    if (m_isHovered)
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

void IssueFace::showCaptions(const QList<Caption> &captions, const IssueStyle &style)
{
    m_captions.show(captions, style.caption, *this);
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
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
    // An item that is kept for reuse receives no leave event from the pointer.
    if (change == ItemVisibleHasChanged && !data.boolValue)
        setHovered(false);
}

void IssueFace::hoverEnterEvent(QHoverEvent *event)
{
    QQuickItem::hoverEnterEvent(event);
    m_pointer = event->position();
    followPointer();
    setHovered(true);
}

void IssueFace::hoverMoveEvent(QHoverEvent *event)
{
    QQuickItem::hoverMoveEvent(event);
    m_pointer = event->position();
    followPointer();
}

void IssueFace::hoverLeaveEvent(QHoverEvent *event)
{
    QQuickItem::hoverLeaveEvent(event);
    setHovered(false);
}

void IssueFace::followPointer()
{
    setHotSpot(spotAt(m_pointer.x(), m_pointer.y()));
}

void IssueFace::setHovered(bool isHovered)
{
    if (!isHovered)
        setHotSpot({});
    if (m_isHovered == isHovered)
        return;
    m_isHovered = isHovered;
    Q_EMIT hoverChanged();
}

void IssueFace::setHotSpot(HotSpot spot)
{
    if (m_hotSpot == spot)
        return;
    m_hotSpot = std::move(spot);
    update();
    Q_EMIT hotSpotChanged();
}
