// The pointer on a document: selecting, clicking, hovering, and scrolling sideways.
#include "model/text/LinkAddress.h"
#include "screens/documents/view/DocumentReader.h"

#include <QCursor>
#include <QGuiApplication>
#include <QStyleHints>

#include <cmath>

namespace {

bool isFromMouse(const QMouseEvent &event)
{
    const auto type = event.device()->type();
    return type == QInputDevice::DeviceType::Mouse || type == QInputDevice::DeviceType::TouchPad;
}

} // namespace

const FocusStop *DocumentReader::stopAt(const DocumentHit &hit) const
{
    for (const auto &stop : stops()) {
        if (stop.kind == FocusStop::Kind::Expand && stop.index == hit.expand)
            return &stop;
        if (stop.kind == FocusStop::Kind::Link && hit.isOnText && stop.text == hit.place.text &&
            hit.place.offset >= stop.start && hit.place.offset <= stop.end)
            return &stop;
    }
    return nullptr;
}

void DocumentReader::mousePressEvent(QMouseEvent *event)
{
    if (!shape() || shape()->blocks().texts.empty()) {
        event->ignore();
        return;
    }
    m_isPressed = true;
    m_pressed = event->position();
    // A mouse selects inside a view that scrolls; a finger scrolls.
    setKeepMouseGrab(isFromMouse(*event));
    m_showsFocus = false;
    forceActiveFocus(Qt::MouseFocusReason);
    const auto place = shape()->hit(m_pressed).place;
    const auto interval = quint64(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const bool isTriple = m_doubleClick > 0 && event->timestamp() - m_doubleClick <= interval;
    m_unit = isTriple ? Unit::Block : Unit::Character;
    if (isTriple)
        selectAround(place, Unit::Block);
    else
        select(event->modifiers() & Qt::ShiftModifier ? m_anchor : place, place);
    m_pressedUnit = selection();
    m_doubleClick = 0;
}

void DocumentReader::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!shape() || shape()->blocks().texts.empty())
        return;
    m_isPressed = true;
    m_pressed = event->position();
    m_unit = Unit::Word;
    m_doubleClick = event->timestamp();
    selectAround(shape()->hit(event->position()).place, Unit::Word);
    m_pressedUnit = selection();
}

void DocumentReader::selectAround(TextPlace place, Unit unit)
{
    TextPlace start{place.text, 0};
    TextPlace end{place.text, lengthOf(place.text)};
    if (unit == Unit::Word) {
        const auto &layout = shape()->text(place.text).layout();
        const int next = layout.nextCursorPosition(place.offset);
        start.offset = layout.previousCursorPosition(next, QTextLayout::SkipWords);
        end.offset = layout.nextCursorPosition(start.offset, QTextLayout::SkipWords);
        // A word does not include the space behind it.
        const QString text = layout.text();
        while (end.offset > start.offset + 1 && text.at(end.offset - 1).isSpace())
            --end.offset;
    }
    select(start, end);
}

void DocumentReader::mouseMoveEvent(QMouseEvent *event)
{
    // A finger that moves scrolls.
    if (!m_isPressed || !shape() || !isFromMouse(*event))
        return;
    const auto place = shape()->hit(event->position()).place;
    if (!visible().contains(event->position()))
        reveal(place);
    if (m_unit == Unit::Character) {
        select(m_anchor, place);
    } else {
        // A drag after a double click selects whole words, after a triple click whole blocks.
        const auto first = m_pressedUnit;
        selectAround(place, m_unit);
        const auto here = selection();
        if (here.first < first.first)
            select(first.last, here.first);
        else
            select(first.first, std::max(here.last, first.last));
    }
}

void DocumentReader::mouseReleaseEvent(QMouseEvent *event)
{
    if (!std::exchange(m_isPressed, false) || !shape())
        return;
    setKeepMouseGrab(false);
    publishSelection();
    const bool isClick = m_anchor == m_caret && m_unit == Unit::Character &&
                         (event->position() - m_pressed).manhattanLength() <
                             QGuiApplication::styleHints()->startDragDistance();
    if (!isClick)
        return;
    if (const auto *stop = stopAt(shape()->hit(event->position())))
        activate(FocusStop(*stop));
}

void DocumentReader::mouseUngrabEvent()
{
    m_isPressed = false;
    setKeepMouseGrab(false);
}

void DocumentReader::hoverEnterEvent(QHoverEvent *event)
{
    DocumentCanvas::hoverEnterEvent(event);
    setHover(event->position());
}

void DocumentReader::hoverMoveEvent(QHoverEvent *event)
{
    DocumentCanvas::hoverMoveEvent(event);
    setHover(event->position());
}

void DocumentReader::setHover(const QPointF &position)
{
    if (!shape())
        return;
    const auto hit = shape()->hit(position);
    const auto *stop = stopAt(hit);
    setCursor(stop ? Qt::PointingHandCursor : hit.isOnText ? Qt::IBeamCursor : Qt::ArrowCursor);
    const int scroller = shape()->scrollerAt(position);
    if (std::exchange(m_hoveredScroller, scroller) != scroller)
        redraw();
    QString hint;
    QRectF box;
    if (stop && stop->kind == FocusStop::Kind::Link) {
        hint = linkToolTip(stop->label, stop->link);
        for (const auto &line : boxes(*stop)) {
            if (box.isNull() || line.contains(position))
                box = line;
        }
    }
    if (m_linkHint == hint && m_hoveredBox == box)
        return;
    m_linkHint = hint;
    m_hoveredBox = box;
    Q_EMIT linkHintChanged();
}

void DocumentReader::hoverLeaveEvent(QHoverEvent *event)
{
    DocumentCanvas::hoverLeaveEvent(event);
    leaveHover();
}

void DocumentReader::leaveHover()
{
    unsetCursor();
    if (std::exchange(m_hoveredScroller, -1) >= 0)
        redraw();
    m_hoveredBox = {};
    if (std::exchange(m_linkHint, QString()).isEmpty())
        return;
    Q_EMIT linkHintChanged();
}

/// Takes turns of the wheel that go sideways: those of a touchpad, and others with Shift.
void DocumentReader::wheelEvent(QWheelEvent *event)
{
    constexpr double notch = 72;
    constexpr double anglePerNotch = 120;
    event->ignore();
    const int scroller = shape() ? shape()->scrollerAt(event->position()) : -1;
    if (scroller < 0)
        return;
    const bool isExact = !event->pixelDelta().isNull();
    const QPointF delta = isExact ? QPointF(event->pixelDelta())
                                  : QPointF(event->angleDelta()) / anglePerNotch * notch;
    const bool isTurned = event->modifiers().testFlag(Qt::ShiftModifier) && delta.x() == 0;
    const double distance = isTurned ? delta.y() : delta.x();
    if (distance == 0 || (!isTurned && std::abs(delta.y()) > std::abs(delta.x())))
        return;
    event->setAccepted(scrollSideways(scroller, shape()->offset(scroller) - distance));
}
