#include "screens/issues/RowLine.h"

#include "screens/issues/PictureNode.h"
#include "screens/issues/RowCaptions.h"
#include "screens/issues/RowPictures.h"
#include "screens/kit/images/ImageLoader.h"
#include "state/ShortcutHints.h"

#include <QHoverEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr double checkTarget = 22;
constexpr double cellWidth = 22;
constexpr double typeWidth = 14;

bool isWithin(double x, double start, double width)
{
    return start != RowPlan::absent && x >= start && x < start + width;
}

} // namespace

RowLine::RowLine(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setAcceptHoverEvents(true);
    connect(this, &RowLine::contentChanged, this, &RowLine::planLater);
}

void RowLine::setIssue(const Issue &issue)
{
    if (m_issue == issue)
        return;
    m_issue = issue;
    followPicture();
    planLater();
    Q_EMIT issueChanged();
}

void RowLine::setStyle(RowStyle *style)
{
    if (m_style == style)
        return;
    if (m_style)
        m_style->disconnect(this);
    m_style = style;
    if (m_style)
        connect(m_style, &RowStyle::changed, this, &RowLine::planLater);
    planLater();
    Q_EMIT styleChanged();
}

// Several values change together when a row is used again.
void RowLine::planLater()
{
    if (isComponentComplete())
        polish();
}

void RowLine::componentComplete()
{
    QQuickItem::componentComplete();
    makePlan();
}

void RowLine::updatePolish()
{
    makePlan();
}

void RowLine::makePlan()
{
    if (!m_style)
        return;
    const RowContents contents{m_style->display, double(m_style->keyWidth), m_issue.labels,
                               m_issue.dueDate ? m_dueText : QString(), m_hasActivity};
    m_plan = rowPlan(contents, width());
    m_captions = rowCaptions(contents, m_plan, *m_style, m_isOverdue);
    update();
    Q_EMIT planned();
}

void RowLine::followPicture()
{
    const QUrl address = m_issue.assignee ? m_issue.assignee->avatarURL.value_or(QUrl()) : QUrl();
    if (!m_picture && !address.isEmpty()) {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): this owns it, as its parent
        m_picture = new RemotePicture(this);
        connect(m_picture, &RemotePicture::sourceChanged, this, &RowLine::update);
    }
    if (m_picture)
        m_picture->setAddress(address);
}

void RowLine::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size() && isComponentComplete())
        makePlan();
}

void RowLine::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
    // A row that waits for its next use is not left by any event.
    if (change == ItemVisibleHasChanged && !data.boolValue && std::exchange(m_isHovered, false))
        Q_EMIT hoverChanged();
}

void RowLine::hoverEnterEvent(QHoverEvent *event)
{
    QQuickItem::hoverEnterEvent(event);
    m_isHovered = true;
    setHotSpot(spotAt(event->position().x()));
    Q_EMIT hoverChanged();
}

void RowLine::hoverMoveEvent(QHoverEvent *event)
{
    QQuickItem::hoverMoveEvent(event);
    setHotSpot(spotAt(event->position().x()));
}

void RowLine::hoverLeaveEvent(QHoverEvent *event)
{
    QQuickItem::hoverLeaveEvent(event);
    m_isHovered = false;
    setHotSpot({});
    Q_EMIT hoverChanged();
}

RowSpot RowLine::spotAt(double x) const
{
    constexpr double checkOutset = 4;
    if (isWithin(x, m_plan.check - checkOutset, checkTarget))
        return {m_plan.check - checkOutset, checkTarget, selectHint()};
    if (isWithin(x, m_plan.priority, cellWidth))
        return {m_plan.priority, cellWidth, displayName(m_issue.priorityLevel()), true};
    if (isWithin(x, m_plan.status, cellWidth))
        return {m_plan.status, cellWidth, m_issue.status.displayName(), true};
    if (isWithin(x, m_plan.type, typeWidth))
        return {m_plan.type, typeWidth, m_issue.type ? m_issue.type->name : QString()};
    if (isWithin(x, m_plan.due, m_plan.dueWidth))
        return {m_plan.due, m_plan.dueWidth, m_dueTooltip};
    if (isWithin(x, m_plan.assignee, cellWidth))
        return {m_plan.assignee, cellWidth,
                m_issue.assignee ? m_issue.assignee->name : u"Non assigné"_s, true};
    return {};
}

void RowLine::setHotSpot(RowSpot spot)
{
    if (m_hotSpot == spot)
        return;
    m_hotSpot = std::move(spot);
    Q_EMIT hotSpotChanged();
}

QSGNode *RowLine::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (!m_style)
        return old;
    auto *node = old ? static_cast<PictureNode *>(old) : new PictureNode;
    const bool hasPicture = m_picture && m_picture->isLoaded();
    node->show(
        window(),
        rowPictures(
            {.issue = m_issue,
             .plan = m_plan,
             .style = *m_style,
             .isOverdue = m_isOverdue,
             .person = hasPicture ? ImageLoader::shared().cached(m_picture->address()) : QImage(),
             .height = height()}));
    return node;
}
