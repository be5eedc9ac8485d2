#include "screens/documents/layout/DocumentPainter.h"

#include "screens/documents/layout/SymbolImages.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace BlockMetrics;

void DocumentPainter::paint(const QRectF &visible)
{
    m_visible = visible;
    m_painter.setRenderHint(QPainter::Antialiasing);
    paintFlow(0);
    paintScrollBar();
    paintFocus();
}

void DocumentPainter::paintFlow(int number)
{
    const auto &flow = m_shape.blocks().flows[size_t(number)];
    for (int i = 0; i < int(flow.frames.size()); ++i)
        paintFrame(number, i);
    const double top = m_shape.flowOrigin(number).y();
    const auto &pieces = m_shape.flow(number).pieces;
    for (int i = m_shape.pieceAt(number, m_visible.top() - top); i < int(pieces.size()); ++i) {
        if (top + pieces[size_t(i)].y > m_visible.bottom())
            break;
        paintPiece(number, i);
    }
}

void DocumentPainter::paintFrame(int number, int index)
{
    constexpr double code = 0.055;
    constexpr double quote = 0.2;
    const auto &frame = m_shape.blocks().flows[size_t(number)].frames[size_t(index)];
    const QRectF box = m_shape.frameBox(number, index);
    if (!isVisible(box))
        return;
    switch (frame.kind) {
    case Frame::Kind::Code:
        fill(box, codeRadius, m_shape.style().ink(code));
        break;
    case Frame::Kind::Quote:
        fill({box.topLeft(), QSizeF(quoteBar, box.height())}, quoteBar / 2,
             m_shape.style().ink(quote));
        break;
    case Frame::Kind::Panel:
        paintPanel(number, frame, box);
        break;
    case Frame::Kind::Item:
        paintMarker(number, frame);
        break;
    case Frame::Kind::Task:
        paintTask(number, frame);
        break;
    case Frame::Kind::List:
    case Frame::Kind::TaskList:
    case Frame::Kind::Table:
    case Frame::Kind::Expand:
        break;
    }
}

void DocumentPainter::fill(const QRectF &box, double radius, const QColor &color)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawRoundedRect(box, radius, radius);
}

/// The lines of the first piece of a frame, if that is a text.
const TextShape *DocumentPainter::firstText(int flow, const Frame &frame)
{
    const auto &piece = m_shape.blocks().flows[size_t(flow)].pieces[size_t(frame.first)];
    return piece.kind == Piece::Kind::Text ? &m_shape.text(piece.index) : nullptr;
}

double DocumentPainter::middleOfFirstLine(int flow, const Frame &frame)
{
    constexpr double usual = 9;
    const auto *text = firstText(flow, frame);
    return m_shape.pieceBox(flow, frame.first).top() + (text ? text->firstLineMiddle() : usual);
}

void DocumentPainter::paintMarker(int flow, const Frame &frame)
{
    const auto &blocks = m_shape.blocks();
    const auto *text = firstText(flow, frame);
    const auto role =
        blocks.flows[size_t(flow)].row >= 0 ? TextBlock::Role::Cell : TextBlock::Role::Body;
    const QFont font = m_shape.style().markerFont(role, m_shape.bodySize());
    const QPointF corner = m_shape.flowOrigin(flow);
    const double top = m_shape.flow(flow).pieces[size_t(frame.first)].y + corner.y();
    m_painter.setFont(font);
    m_painter.setPen(m_shape.style().secondary);
    const double baseline = text ? text->firstBaseline() : double(font.pixelSize());
    m_painter.drawText(QPointF(corner.x() + frame.left, std::round(top + baseline)), frame.marker);
}

void DocumentPainter::paintTask(int flow, const Frame &frame)
{
    const auto &style = m_shape.style();
    const QPointF corner(m_shape.flowOrigin(flow).x() + frame.left,
                         middleOfFirstLine(flow, frame) - taskSymbol / 2);
    paintSymbolAt(frame.isDone ? u"checkmark.square.fill"_s : u"square"_s,
                  frame.isDone ? style.accent : style.secondary,
                  {corner, QSizeF(taskSymbol, taskSymbol)});
}

void DocumentPainter::paintPanel(int flow, const Frame &frame, const QRectF &box)
{
    constexpr float opacity = 0.1F;
    const QColor color = m_shape.style().panel(frame.panel.color);
    QColor ground = color;
    ground.setAlphaF(opacity);
    fill(box, panelRadius, ground);
    const QPointF corner(box.left() + panelSidePadding,
                         middleOfFirstLine(flow, frame) - panelIcon / 2);
    paintSymbolAt(frame.panel.icon, color, {corner, QSizeF(panelIcon, panelIcon)});
}

void DocumentPainter::paintSymbolAt(const QString &name, const QColor &color, const QRectF &box)
{
    const QPointF corner(std::round(box.left() / m_pixel) * m_pixel,
                         std::round(box.top() / m_pixel) * m_pixel);
    m_painter.drawImage(QRectF(corner, box.size()),
                        symbolImage(name, color, box.width(), 1 / m_pixel));
}

void DocumentPainter::paintPiece(int flow, int number)
{
    const auto &piece = m_shape.blocks().flows[size_t(flow)].pieces[size_t(number)];
    switch (piece.kind) {
    case Piece::Kind::Text:
        paintText(piece.index);
        break;
    case Piece::Kind::ExpandHeader:
        paintExpandHeader(flow, number);
        break;
    case Piece::Kind::Rule:
        m_painter.fillRect(m_shape.pieceBox(flow, number), m_shape.style().divider);
        break;
    case Piece::Kind::TableRow:
        paintRow(piece.index);
        break;
    case Piece::Kind::Media:
        break;
    }
}

void DocumentPainter::paintText(int number)
{
    const auto &text = m_shape.blocks().texts[size_t(number)];
    const auto &lines = m_shape.text(number);
    const auto part = m_marks.selection.within(number, lines.length());
    const bool isCode = text.role == TextBlock::Role::Code;
    if (isCode) {
        m_painter.save();
        const auto &piece = m_shape.blocks().flows[size_t(text.flow)].pieces[size_t(text.piece)];
        m_painter.setClipRect(m_shape.frameBox(text.flow, piece.frame).adjusted(1, 0, -1, 0),
                              Qt::IntersectClip);
    }
    lines.draw(m_painter, m_shape.origin(number), part);
    if (isCode)
        m_painter.restore();
}

void DocumentPainter::paintExpandHeader(int flow, int number)
{
    constexpr double chevron = 10;
    const auto &pieces = m_shape.blocks().flows[size_t(flow)];
    const auto &piece = pieces.pieces[size_t(number)];
    const auto &frame = pieces.frames[size_t(piece.frame)];
    const bool isOpen = m_shape.blocks().expands[size_t(frame.index)].isOpen;
    const QRectF box = m_shape.pieceBox(flow, number);
    const double middle = box.top() + m_shape.text(piece.index).firstLineMiddle();
    paintSymbolAt(isOpen ? u"chevron.down"_s : u"chevron.right"_s, m_shape.style().secondary,
                  {box.left() - expandIndent + 1, middle - chevron / 2, chevron, chevron});
    paintText(piece.index);
}

void DocumentPainter::paintRow(int number)
{
    const auto &row = m_shape.blocks().rows[size_t(number)];
    const auto &piece = m_shape.blocks().flows[size_t(row.flow)].pieces[size_t(row.piece)];
    const auto &edges = m_shape.columns(row.table);
    const double offset = m_shape.offset(m_shape.blocks().tables[size_t(row.table)].scroller);
    const QRectF whole = m_shape.frameBox(row.flow, piece.frame);
    const QRectF box = m_shape.pieceBox(row.flow, row.piece);
    m_painter.save();
    m_painter.setClipRect(QRectF(whole.left(), box.top() - 1, whole.width(), box.height() + 2),
                          Qt::IntersectClip);
    for (int column = 0; column < int(row.cells.size()); ++column) {
        const double left = box.left() + edges[size_t(column)] - offset;
        const double width = edges[size_t(column) + 1] - edges[size_t(column)];
        paintCell(row, column, {left, box.top(), width, box.height()});
        paintFlow(row.cells[size_t(column)].flow);
    }
    m_painter.restore();
}

/// A cell draws its right and its lower border. The others are those of its neighbours, if there are any.
void DocumentPainter::paintCell(const TableRow &row, int column, const QRectF &box)
{
    constexpr double header = 0.05;
    constexpr double border = 0.1;
    if (row.cells[size_t(column)].isHeader)
        m_painter.fillRect(box, m_shape.style().ink(header));
    const QColor line = m_shape.style().ink(border);
    const auto &blocks = m_shape.blocks();
    const auto &rows = blocks.tables[size_t(row.table)].rows;
    const auto here = std::ranges::lower_bound(rows, int(&row - blocks.rows.data()));
    const bool isTop =
        here == rows.begin() || int(blocks.rows[size_t(*std::prev(here))].cells.size()) <= column;
    const double left = column == 0 ? box.left() : box.left() - m_pixel;
    m_painter.fillRect(QRectF(left, box.bottom() - m_pixel, box.right() - left, m_pixel), line);
    m_painter.fillRect(QRectF(box.right() - m_pixel, box.top(), m_pixel, box.height() - m_pixel),
                       line);
    if (isTop)
        m_painter.fillRect(QRectF(box.left(), box.top(), box.width() - m_pixel, m_pixel), line);
    if (column == 0)
        m_painter.fillRect(QRectF(box.left(), box.top(), m_pixel, box.height() - m_pixel), line);
}

void DocumentPainter::paintScrollBar()
{
    constexpr double thickness = 4;
    constexpr double margin = 3;
    constexpr double shortest = 28;
    if (m_marks.scroller < 0)
        return;
    const auto place = m_shape.scroller(m_marks.scroller);
    if (place.farthest() <= 0)
        return;
    const double track = place.viewport.width() - 2 * margin;
    const double length = std::max(shortest, track * place.viewport.width() / place.contentWidth);
    const double share = m_shape.offset(m_marks.scroller) / place.farthest();
    fill({place.viewport.left() + margin + share * (track - length),
          place.viewport.bottom() - margin - thickness, length, thickness},
         thickness / 2, m_shape.style().scrollThumb);
}

void DocumentPainter::paintFocus()
{
    constexpr double width = 2;
    constexpr double radius = 5;
    m_painter.setPen(QPen(m_shape.style().focusRing, width));
    m_painter.setBrush(Qt::NoBrush);
    for (const auto &box : m_marks.focus)
        m_painter.drawRoundedRect(box, radius, radius);
}
