// The keyboard on a document: the focus on links and other parts, and selecting.
#include "screens/documents/view/DocumentReader.h"

#include <QKeyEvent>

namespace {

bool isReturn(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isSideways(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End;
}

bool movesCaret(int key)
{
    return isSideways(key) || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

bool DocumentReader::event(QEvent *event)
{
    // Keys of the window give way to those of the document that has the focus.
    if (event->type() == QEvent::ShortcutOverride &&
        wants(*static_cast<const QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return DocumentCanvas::event(event);
}

bool DocumentReader::wants(const QKeyEvent &event) const
{
    if (event.matches(QKeySequence::Copy) || event.matches(QKeySequence::SelectAll))
        return true;
    if (event.modifiers().testFlag(Qt::ShiftModifier))
        return movesCaret(event.key());
    const bool isPlain = !(event.modifiers() & ~Qt::KeypadModifier);
    if (!isPlain || m_focused < 0 || m_focused >= int(m_stops.size()))
        return false;
    const auto kind = m_stops[size_t(m_focused)].kind;
    if (kind == FocusStop::Kind::Scroller)
        return isSideways(event.key());
    return isReturn(event.key()) ||
           (kind == FocusStop::Kind::Expand && event.key() == Qt::Key_Space);
}

void DocumentReader::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
    if (!shape())
        return;
    bool isTaken = true;
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (event->matches(QKeySequence::Copy) && m_anchor != m_caret)
        copy();
    else if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else if (isTab && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        isTaken = moveFocus(event->key() == Qt::Key_Tab &&
                            !event->modifiers().testFlag(Qt::ShiftModifier));
    else
        isTaken = moveCaret(*event) || operate(*event);
    event->setAccepted(isTaken);
}

void DocumentReader::focusInEvent(QFocusEvent *event)
{
    DocumentCanvas::focusInEvent(event);
    const bool isTab =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    m_showsFocus = isTab || (m_showsFocus && event->reason() != Qt::MouseFocusReason);
    if (!isTab || !shape())
        return;
    m_focused = -1;
    int last = int(m_stops.size()) - 1;
    while (last >= 0 && !canFocus(m_stops[size_t(last)]))
        --last;
    focusOn(event->reason() == Qt::BacktabFocusReason ? last : -1);
}

void DocumentReader::focusOutEvent(QFocusEvent *event)
{
    DocumentCanvas::focusOutEvent(event);
    const auto reason = event->reason();
    const bool isReturning = reason == Qt::ActiveWindowFocusReason ||
                             reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
    if (!isReturning)
        clearSelection();
    redraw();
}

bool DocumentReader::canFocus(const FocusStop &stop)
{
    return stop.kind != FocusStop::Kind::Scroller || shape()->scroller(stop.index).farthest() > 0;
}

bool DocumentReader::moveFocus(bool forwards)
{
    const int step = forwards ? 1 : -1;
    int next = m_focused + step;
    while (next >= 0 && next < int(m_stops.size()) && !canFocus(m_stops[size_t(next)]))
        next += step;
    if (next < -1 || next >= int(m_stops.size()))
        return false;
    focusOn(next);
    return true;
}

void DocumentReader::focusOn(int stop)
{
    m_focused = stop;
    m_showsFocus = true;
    redraw();
    if (stop < 0) {
        Q_EMIT revealRequested(QRectF(0, 0, width(), 1));
        return;
    }
    const auto &focused = m_stops[size_t(stop)];
    const auto &text = shape()->blocks().texts[size_t(focused.text)];
    const QRectF near = shape()->pieceBox(text.flow, text.piece);
    shape()->makeExact(near.top(), near.bottom());
    if (auto *part = QAccessible::isActive() ? m_speech.stop(stop) : nullptr) {
        QAccessibleEvent moved(part, QAccessible::Focus);
        QAccessible::updateAccessibility(&moved);
    }
    const auto areas = boxes(focused);
    Q_EMIT revealRequested(areas.isEmpty() ? near : areas.first());
}

bool DocumentReader::operate(const QKeyEvent &event)
{
    if (m_focused < 0 || m_focused >= int(m_stops.size()) ||
        (event.modifiers() & ~Qt::KeypadModifier))
        return false;
    const FocusStop stop = m_stops[size_t(m_focused)];
    if (stop.kind == FocusStop::Kind::Scroller)
        return scrollFocused(event);
    if (!wants(event))
        return false;
    if (!event.isAutoRepeat())
        activate(stop);
    return true;
}

bool DocumentReader::scrollFocused(const QKeyEvent &event)
{
    constexpr double step = 40;
    const int scroller = m_stops[size_t(m_focused)].index;
    const double offset = shape()->offset(scroller);
    switch (event.key()) {
    case Qt::Key_Left:
        scrollSideways(scroller, offset - step);
        return true;
    case Qt::Key_Right:
        scrollSideways(scroller, offset + step);
        return true;
    case Qt::Key_Home:
        scrollSideways(scroller, 0);
        return true;
    case Qt::Key_End:
        scrollSideways(scroller, shape()->scroller(scroller).farthest());
        return true;
    default:
        return false;
    }
}

/// Moves one end of the selection, with Shift and the keys that move a text cursor.
bool DocumentReader::moveCaret(const QKeyEvent &event)
{
    if (!event.modifiers().testFlag(Qt::ShiftModifier) || shape()->blocks().texts.empty())
        return false;
    if (m_anchor == m_caret && m_focused >= 0 && m_anchor == TextPlace()) {
        const auto &stop = m_stops[size_t(m_focused)];
        m_anchor = m_caret = {stop.text, stop.start};
    }
    const auto place = moved(event);
    if (!place)
        return false;
    select(m_anchor, *place);
    reveal(*place);
    return true;
}

std::optional<TextPlace> DocumentReader::moved(const QKeyEvent &event)
{
    const bool isFar = event.modifiers().testFlag(Qt::ControlModifier);
    const auto line = [&](bool toEnd) {
        const auto &lines = shape()->text(m_caret.text);
        const auto at = lines.layout().lineForTextPosition(m_caret.offset);
        if (!at.isValid())
            return m_caret;
        const bool isLast = at.lineNumber() == lines.layout().lineCount() - 1;
        const int end = at.textStart() + at.textLength() - (isLast ? 0 : 1);
        return TextPlace{m_caret.text, toEnd ? end : at.textStart()};
    };
    switch (event.key()) {
    case Qt::Key_Left:
        return stepped(m_caret, false, isFar);
    case Qt::Key_Right:
        return stepped(m_caret, true, isFar);
    case Qt::Key_Up:
        return steppedLine(m_caret, false);
    case Qt::Key_Down:
        return steppedLine(m_caret, true);
    case Qt::Key_Home:
        return isFar ? TextPlace() : line(false);
    case Qt::Key_End:
        return isFar ? endOfDocument() : line(true);
    default:
        return std::nullopt;
    }
}

TextPlace DocumentReader::stepped(TextPlace place, bool forwards, bool byWord)
{
    const auto mode = byWord ? QTextLayout::SkipWords : QTextLayout::SkipCharacters;
    const auto &layout = shape()->text(place.text).layout();
    if (forwards && place.offset >= lengthOf(place.text))
        return place.text < endOfDocument().text ? TextPlace{place.text + 1, 0} : place;
    if (!forwards && place.offset <= 0)
        return place.text > 0 ? TextPlace{place.text - 1, lengthOf(place.text - 1)} : place;
    place.offset = forwards ? layout.nextCursorPosition(place.offset, mode)
                            : layout.previousCursorPosition(place.offset, mode);
    return place;
}

/// The place above or below, in the same text or the next one.
TextPlace DocumentReader::steppedLine(TextPlace place, bool down)
{
    const auto *lines = &shape()->text(place.text);
    const double x = shape()->origin(place.text).x() + lines->caret(place.offset).x();
    const auto at = lines->layout().lineForTextPosition(place.offset);
    int number = (at.isValid() ? at.lineNumber() : 0) + (down ? 1 : -1);
    if (number < 0 || number >= std::max(1, lines->layout().lineCount())) {
        const int text = place.text + (down ? 1 : -1);
        if (text < 0)
            return {};
        if (text > endOfDocument().text)
            return endOfDocument();
        place.text = text;
        lines = &shape()->text(text);
        number = down ? 0 : lines->layout().lineCount() - 1;
    }
    if (number < 0 || number >= lines->layout().lineCount())
        return {place.text, 0};
    const QPointF local(x - shape()->origin(place.text).x(),
                        lines->layout().lineAt(number).y() + 1);
    return {place.text, lines->offsetAt(local)};
}

void DocumentReader::reveal(TextPlace place)
{
    const QRectF caret = shape()->text(place.text).caret(place.offset);
    Q_EMIT revealRequested(caret.translated(shape()->origin(place.text)));
}
