#include "screens/documents/view/DocumentReader.h"

#include "model/text/LinkAddress.h"
#include "screens/documents/content/CopiedText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

DocumentReader::DocumentReader(QQuickItem *parent) : DocumentCanvas(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptHoverEvents(true);
    setActiveFocusOnTab(true);
    DocumentSpeech::install();
    connect(this, &DocumentCanvas::blocksChanged, this, &DocumentReader::makeStops);
}

void DocumentReader::makeStops()
{
    m_stops = focusStops(shape()->blocks());
    m_focused = std::min(m_focused, int(m_stops.size()) - 1);
}

/// The selection is lost, and so is what the pointer is over.
void DocumentReader::forgetPlaces()
{
    m_speech.forget();
    leaveHover();
    const bool hadSelection = m_anchor != m_caret;
    m_anchor = m_caret = {};
    m_isPressed = false;
    if (hadSelection)
        Q_EMIT selectionChanged();
}

DocumentMarks DocumentReader::marks()
{
    DocumentMarks marks{.selection = selection(), .scroller = m_hoveredScroller};
    if (!m_showsFocus || !hasActiveFocus())
        return marks;
    if (m_focused < 0) {
        constexpr double outset = 4;
        marks.focus.append(
            QRectF(0, 0, width(), shape()->height()).adjusted(-outset, -outset, outset, outset));
        return marks;
    }
    const auto &stop = m_stops[size_t(m_focused)];
    marks.focus = boxes(stop);
    if (stop.kind == FocusStop::Kind::Scroller)
        marks.scroller = stop.index;
    return marks;
}

QList<QRectF> DocumentReader::boxes(const FocusStop &stop)
{
    constexpr double outset = 3;
    QList<QRectF> boxes;
    if (stop.kind == FocusStop::Kind::Scroller) {
        boxes.append(shape()->scroller(stop.index).viewport);
    } else if (stop.kind == FocusStop::Kind::Expand) {
        const auto &text = shape()->blocks().texts[size_t(stop.text)];
        QRectF box = shape()->pieceBox(text.flow, text.piece);
        box.setLeft(box.left() - BlockMetrics::expandIndent + 2);
        box.setWidth(BlockMetrics::expandIndent + shape()->text(stop.text).width());
        boxes.append(box.adjusted(-outset, 0, outset, 0));
    } else {
        const QPointF corner = shape()->origin(stop.text);
        for (const auto &box : shape()->text(stop.text).boxes(stop.start, stop.end))
            boxes.append(box.translated(corner).adjusted(-outset, 0, outset, 0));
    }
    return boxes;
}

void DocumentReader::activate(const FocusStop &stop)
{
    if (stop.kind == FocusStop::Kind::Expand)
        toggleExpand(stop.index);
    else if (stop.kind == FocusStop::Kind::Link && openableAddress(stop.link))
        Q_EMIT linkActivated(stop.link);
}

QString DocumentReader::selectedText() const
{
    const auto *shape = this->shape();
    return shape ? CopiedText::plain(shape->blocks(), selection()) : QString();
}

int DocumentReader::lengthOf(int text) const
{
    const auto *shape = this->shape();
    int length = 0;
    for (const auto &run : shape->blocks().texts[size_t(text)].runs)
        length += int(run.text.size());
    return length;
}

TextPlace DocumentReader::endOfDocument() const
{
    const auto *shape = this->shape();
    const int last = shape ? int(shape->blocks().texts.size()) - 1 : -1;
    return last < 0 ? TextPlace() : TextPlace{last, lengthOf(last)};
}

void DocumentReader::selectAll()
{
    if (shape())
        select({}, endOfDocument());
}

void DocumentReader::clearSelection()
{
    select(m_caret, m_caret);
}

void DocumentReader::select(TextPlace anchor, TextPlace caret)
{
    if (m_anchor == anchor && m_caret == caret)
        return;
    const auto before = selection();
    m_anchor = anchor;
    m_caret = caret;
    const auto after = selection();
    if (!shape() || shape()->blocks().texts.empty())
        return;
    // Only the lines between the old and the new places are drawn anew, which a drag of the pointer moves by little.
    const auto first = before.first == after.first ? std::min(before.last, after.last)
                                                   : std::min(before.first, after.first);
    const auto last = before.last == after.last ? std::max(before.first, after.first)
                                                : std::max(before.last, after.last);
    const auto &texts = shape()->blocks().texts;
    const auto &from = texts[size_t(first.text)];
    const auto &to = texts[size_t(last.text)];
    redraw(shape()->pieceBox(from.flow, from.piece).top(),
           shape()->pieceBox(to.flow, to.piece).bottom());
    Q_EMIT selectionChanged();
}

void DocumentReader::copy() const
{
    if (m_anchor == m_caret)
        return;
    const auto *shape = this->shape();
    auto data = std::make_unique<QMimeData>();
    data->setText(CopiedText::plain(shape->blocks(), selection()));
    data->setHtml(CopiedText::html(shape->blocks(), selection()));
    // The clipboard takes ownership.
    QGuiApplication::clipboard()->setMimeData(data.release());
}

/// What is selected with the pointer can be pasted with the middle button, where the desktop knows that.
void DocumentReader::publishSelection() const
{
    auto *clipboard = QGuiApplication::clipboard();
    if (m_anchor != m_caret && clipboard->supportsSelection())
        clipboard->setText(selectedText(), QClipboard::Selection);
}
