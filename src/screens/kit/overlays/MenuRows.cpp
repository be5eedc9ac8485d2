#include "screens/kit/overlays/MenuRows.h"

#include <QHoverEvent>
#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// The scroll distance of one step of a wheel: two rows.
constexpr qreal wheelStep = 52;

qreal number(const QQuickItem *row, const char *property)
{
    return row->property(property).toReal();
}

bool isEntry(const QQuickItem *row)
{
    return row->inherits("QQuickMenuItem");
}

bool hasTick(const QQuickItem *row)
{
    return row && row->property("checked").toBool();
}

} // namespace

MenuRows::MenuRows(QQuickItem *parent) : QQuickItem(parent) {}

void MenuRows::setMenu(QObject *menu)
{
    if (m_menu == menu)
        return;
    m_menu = menu;
    connect(menu, SIGNAL(currentIndexChanged()), this, SLOT(followHighlight()));
    connect(menu, SIGNAL(countChanged()), this, SLOT(remeasure()));
    Q_EMIT menuChanged();
}

void MenuRows::setList(QQuickItem *list)
{
    if (m_list == list)
        return;
    m_list = list;
    // Without a highlight the list has the focus.
    list->installEventFilter(this);
    Q_EMIT listChanged();
}

void MenuRows::setSignHeight(qreal height)
{
    if (m_signHeight == height)
        return;
    m_signHeight = height;
    Q_EMIT signHeightChanged();
}

qreal MenuRows::furthest() const
{
    return std::max(0.0, m_total - height());
}

void MenuRows::remeasure()
{
    m_isStale = true;
    polish();
}

void MenuRows::refresh()
{
    if (m_isStale)
        measure();
}

void MenuRows::begin()
{
    m_pointer.reset();
    measure();
}

void MenuRows::measure()
{
    m_isStale = false;
    QList<QPointer<QQuickItem>> rows;
    const int count = m_menu ? m_menu->property("count").toInt() : 0;
    for (int i = 0; i < count; ++i) {
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(m_menu, "itemAt", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, i));
        rows.append(row);
    }
    follow(rows);
    const bool hasTicks = std::any_of(m_rows.begin(), m_rows.end(), hasTick);
    qreal widest = 0;
    qreal widestTail = 0;
    for (const auto &row : std::as_const(m_rows)) {
        if (isEntry(row))
            row->setProperty("hasMarkRoom", hasTicks);
        // Shortcuts and submenu signs form a column of their own, which no title reaches.
        widestTail = std::max(widestTail, number(row, "tailWidth"));
        widest = std::max(widest, row->implicitWidth() - number(row, "tailWidth"));
    }
    setImplicitWidth(widest + widestTail);
    place();
    setImplicitHeight(m_total);
    mendHighlight();
}

void MenuRows::follow(const QList<QPointer<QQuickItem>> &rows)
{
    for (const auto &row : std::as_const(m_rows)) {
        if (!row || rows.contains(row))
            continue;
        row->removeEventFilter(this);
        disconnect(row, nullptr, this, nullptr);
    }
    for (const auto &row : rows) {
        if (m_rows.contains(row))
            continue;
        row->installEventFilter(this);
        connect(row, &QQuickItem::heightChanged, this, &MenuRows::remeasure);
        connect(row, &QQuickItem::implicitWidthChanged, this, &MenuRows::remeasure);
        connect(row, &QQuickItem::enabledChanged, this, &MenuRows::remeasure);
        connect(row, &QQuickItem::visibleChanged, this, &MenuRows::remeasure);
    }
    m_rows = rows;
}

void MenuRows::place()
{
    m_tops.clear();
    m_total = 0;
    for (const auto &row : std::as_const(m_rows)) {
        m_tops.append(m_total);
        m_total += row ? row->height() : 0;
    }
    m_offset = std::clamp(m_offset, 0.0, furthest());
    for (int i = 0; i < m_rows.size(); ++i) {
        auto *item = row(i);
        const qreal top = m_tops[i] - m_offset;
        if (item && top < height() && top + item->height() > 0 && isEntry(item))
            item->setProperty("isNear", true);
    }
    if (m_list) {
        QMetaObject::invokeMethod(m_list, "forceLayout");
        m_list->setProperty("contentY", m_list->property("originY").toReal() + m_offset);
    }
    Q_EMIT scrolled();
}

void MenuRows::setOffset(qreal offset)
{
    m_offset = std::round(offset);
    place();
}

void MenuRows::scrollTo(qreal offset)
{
    refresh();
    setOffset(offset);
    const int now = current();
    if (now < 0 || isInView(now))
        return;
    // The submenu of a row out of view would stand beside nothing.
    if (auto *submenu = row(now) ? row(now)->property("subMenu").value<QObject *>() : nullptr)
        QMetaObject::invokeMethod(submenu, "close");
    const int step = m_tops[now] < m_offset + m_signHeight ? 1 : -1;
    int next = now;
    while (next >= 0 && !isInView(next))
        next = choosableFrom(next + step, step);
    highlight(next);
}

void MenuRows::mendHighlight()
{
    const auto isLit = [](const auto &row) { return row && row->property("highlighted").toBool(); };
    // The index can be beyond the last row after an entry has disappeared.
    if (!m_menu || m_menu->property("currentIndex").toInt() < 0)
        return;
    const auto lit = std::find_if(m_rows.begin(), m_rows.end(), isLit);
    const int index = lit == m_rows.end() ? -1 : int(lit - m_rows.begin());
    highlight(index >= 0 && canBeChosen(index) ? index : -1);
    // Rows that appeared before it can have moved it out of view.
    if (current() >= 0 && height() > 0)
        reveal(current());
}

int MenuRows::current() const
{
    const int index = m_menu ? m_menu->property("currentIndex").toInt() : -1;
    return index < m_rows.size() ? index : -1;
}

void MenuRows::highlight(int index)
{
    m_menu->setProperty("currentIndex", index);
}

void MenuRows::goTo(int index)
{
    m_isKeyed = true;
    highlight(index);
    reveal(index);
}

bool MenuRows::canBeChosen(int index) const
{
    const auto *item = row(index);
    const bool isHidden = item && isVisible() && !item->isVisible();
    return item && isEntry(item) && item->isEnabled() && item->height() > 0 && !isHidden;
}

bool MenuRows::isInView(int index) const
{
    const qreal top = m_tops[index] - m_offset;
    const qreal first = m_offset > 0 ? m_signHeight : 0;
    const qreal last = height() - (m_offset < furthest() ? m_signHeight : 0);
    return top >= first && top + row(index)->height() <= last;
}

int MenuRows::choosableFrom(int index, int step) const
{
    for (int i = index; i >= 0 && i < m_rows.size(); i += step) {
        if (canBeChosen(i))
            return i;
    }
    return -1;
}

int MenuRows::onePageFrom(int index, int step) const
{
    const qreal page = height() - 2 * m_signHeight;
    int best = choosableFrom(index + step, step);
    for (int i = best; i >= 0; i = choosableFrom(i + step, step)) {
        if (std::abs(m_tops[i] - m_tops[index]) > page)
            break;
        best = i;
    }
    return best;
}

void MenuRows::reveal(int index)
{
    const qreal top = m_tops[index] - (index > 0 ? m_signHeight : 0);
    const qreal bottom =
        m_tops[index] + row(index)->height() + (index < m_rows.size() - 1 ? m_signHeight : 0);
    if (top < m_offset)
        setOffset(top);
    else if (bottom > m_offset + height())
        setOffset(bottom - height());
}

void MenuRows::followHighlight()
{
    refresh();
    const int now = current();
    const bool isPointed = row(now) && row(now)->property("hovered").toBool();
    if (row(now) && height() > 0 && !isPointed)
        reveal(now);
}

bool MenuRows::hasPointerMovedTo(QPointF position)
{
    const auto before = std::exchange(m_pointer, position);
    return before && *before != position;
}

bool MenuRows::isFromRestingPointer(const QHoverEvent &event)
{
    m_isKeyed = !hasPointerMovedTo(event.scenePosition()) && m_isKeyed;
    return m_isKeyed;
}

bool MenuRows::eventFilter(QObject *row, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!take(*static_cast<QKeyEvent *>(event)))
            break;
        event->accept();
        return true;
    case QEvent::KeyRelease:
        if (m_holdsSpace && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
            m_holdsSpace = false;
            return true;
        }
        break;
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        if (isFromRestingPointer(*static_cast<QHoverEvent *>(event)))
            return true;
        break;
    default:
        break;
    }
    return QQuickItem::eventFilter(row, event);
}

void MenuRows::wheelEvent(QWheelEvent *event)
{
    const QPoint pixels = event->pixelDelta();
    const qreal steps = event->angleDelta().y() / 120.0;
    m_isKeyed = false;
    m_pointer = event->scenePosition();
    scrollTo(m_offset - (pixels.isNull() ? steps * wheelStep : pixels.y()));
    event->accept();
}

void MenuRows::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.height() == before.height())
        return;
    refresh();
    place();
    followHighlight();
}

void MenuRows::updatePolish()
{
    measure();
}
