// The positions of the parts of a document that is laid out.
#include "screens/documents/layout/DocumentShape.h"

#include <algorithm>
#include <cmath>

using namespace BlockMetrics;

namespace {

/// The columns of longer tables are as wide as their first rows need.
constexpr size_t measuredRows = 60;

} // namespace

QPointF DocumentShape::flowOrigin(int flow)
{
    QPointF origin;
    // From the cell outwards.
    while (m_blocks.flows[size_t(flow)].row >= 0) {
        const auto &cell = m_blocks.flows[size_t(flow)];
        const auto &row = m_blocks.rows[size_t(cell.row)];
        const auto &edges = columns(row.table);
        const auto &piece = m_blocks.flows[size_t(row.flow)].pieces[size_t(row.piece)];
        const auto &table = m_blocks.tables[size_t(row.table)];
        origin += QPointF(piece.left + edges[size_t(cell.column)] + cellSidePadding -
                              offset(table.scroller),
                          m_flows[size_t(row.flow)].pieces[size_t(row.piece)].y + cellPadding);
        flow = row.flow;
    }
    return origin;
}

QPointF DocumentShape::origin(int number)
{
    const auto &text = m_blocks.texts[size_t(number)];
    const auto &piece = m_blocks.flows[size_t(text.flow)].pieces[size_t(text.piece)];
    const auto &shape = m_flows[size_t(text.flow)].pieces[size_t(text.piece)];
    QPointF origin = flowOrigin(text.flow) + QPointF(piece.left, shape.y);
    if (text.role == TextBlock::Role::Code)
        origin.rx() -= offset(scrollerOf(number));
    return origin;
}

QRectF DocumentShape::pieceBox(int flow, int number)
{
    const auto &piece = m_blocks.flows[size_t(flow)].pieces[size_t(number)];
    const auto &shape = m_flows[size_t(flow)].pieces[size_t(number)];
    return {flowOrigin(flow) + QPointF(piece.left, shape.y),
            QSizeF(pieceWidth(flow, piece), shape.height)};
}

QRectF DocumentShape::frameBox(int flow, int number)
{
    const auto &frame = m_blocks.flows[size_t(flow)].frames[size_t(number)];
    const auto &shape = m_flows[size_t(flow)];
    const auto &first = shape.pieces[size_t(frame.first)];
    const auto &last = shape.pieces[size_t(frame.end) - 1];
    const QPointF corner(frame.left, first.y - frame.above);
    const double width = std::max(20.0, shape.width - frame.left - frame.right);
    return {flowOrigin(flow) + corner,
            QSizeF(width, last.y + last.height + frame.below - corner.y())};
}

const std::vector<double> &DocumentShape::columns(int table)
{
    auto &edges = m_columns[size_t(table)];
    if (edges.empty()) {
        edges = placedColumns(table);
        keepFittingLines(table);
    }
    return edges;
}

/// The lines of the measured texts stay if their columns are wide enough, because most cells are laid out next.
void DocumentShape::keepFittingLines(int table)
{
    const auto &rows = m_blocks.tables[size_t(table)].rows;
    for (size_t i = 0; i < std::min(measuredRows, rows.size()); ++i) {
        for (const auto &cell : m_blocks.rows[size_t(rows[i])].cells) {
            setCellWidth(cell.flow);
            const auto &pieces = m_blocks.flows[size_t(cell.flow)].pieces;
            for (size_t j = 0; j < pieces.size(); ++j) {
                auto &text = m_flows[size_t(cell.flow)].pieces[j].text;
                if (text && text->width() > pieceWidth(cell.flow, pieces[j]))
                    text.reset();
            }
        }
    }
}

/// Gives a flow the width of its column. The document itself has its width already.
void DocumentShape::setCellWidth(int flow)
{
    const auto &cell = m_blocks.flows[size_t(flow)];
    if (cell.row < 0)
        return;
    const auto &edges = columns(m_blocks.rows[size_t(cell.row)].table);
    const auto column = size_t(cell.column);
    m_flows[size_t(flow)].width = edges[column + 1] - edges[column] - 2 * cellSidePadding;
}

/// Each column is as wide as its widest text, within limits.
std::vector<double> DocumentShape::measuredColumns(int number)
{
    const auto &table = m_blocks.tables[size_t(number)];
    std::vector<double> widths(size_t(table.columns), narrowestColumn);
    for (size_t i = 0; i < std::min(measuredRows, table.rows.size()); ++i) {
        const auto &cells = m_blocks.rows[size_t(table.rows[i])].cells;
        for (size_t column = 0; column < cells.size(); ++column) {
            const double wanted = naturalWidth(cells[column].flow) + 2 * cellSidePadding;
            widths[column] = std::max(widths[column], std::min(widestColumn, wanted));
        }
    }
    return widths;
}

/// Wide columns become narrower as far as necessary for the table to fit, and as far as their texts stay readable.
std::vector<double> DocumentShape::placedColumns(int number)
{
    auto &widths = m_columnWidths[size_t(number)];
    if (widths.empty())
        widths = measuredColumns(number);
    const auto &row = m_blocks.rows[size_t(m_blocks.tables[size_t(number)].rows.front())];
    const auto &piece = m_blocks.flows[size_t(row.flow)].pieces[size_t(row.piece)];
    setCellWidth(row.flow);
    double excess = -pieceWidth(row.flow, piece);
    double spare = 0;
    for (const double width : widths) {
        excess += std::ceil(width);
        spare += std::max(0.0, width - shrunkColumn);
    }
    const double share = spare > 0 ? std::clamp(excess / spare, 0.0, 1.0) : 0;
    std::vector<double> edges{0};
    for (const double width : widths) {
        const double placed = width - share * std::max(0.0, width - shrunkColumn);
        edges.push_back(edges.back() + (share > 0 ? std::floor(placed) : std::ceil(placed)));
    }
    return edges;
}

/// The width that a cell needs so that none of its texts is wrapped.
double DocumentShape::naturalWidth(int flow)
{
    double widest = 0;
    const auto &pieces = m_blocks.flows[size_t(flow)].pieces;
    for (size_t i = 0; i < pieces.size(); ++i) {
        const auto &piece = pieces[i];
        double width = 0;
        if (piece.kind == Piece::Kind::Text || piece.kind == Piece::Kind::ExpandHeader) {
            auto shape = std::make_unique<TextShape>(m_blocks.texts[size_t(piece.index)], m_style,
                                                     m_bodySize);
            shape->layOut(TextShape::Unwrapped);
            width = std::ceil(shape->width()) + 1;
            if (width <= widestColumn - 2 * cellSidePadding)
                m_flows[size_t(flow)].pieces[i].text = std::move(shape);
        } else if (piece.kind != Piece::Kind::Rule) {
            width = widestColumn;
        }
        widest = std::max(widest, piece.left + width + piece.right);
        if (widest >= widestColumn)
            break;
    }
    return widest;
}

void DocumentShape::setOffset(int number, double offset)
{
    m_offsets[size_t(number)] = std::clamp(offset, 0.0, scroller(number).farthest());
}

ScrollerPlace DocumentShape::scroller(int number)
{
    const auto [flow, index] = m_scrollers[size_t(number)];
    if (flow < 0)
        return {};
    const auto &frame = m_blocks.flows[size_t(flow)].frames[size_t(index)];
    ScrollerPlace place{.viewport = frameBox(flow, index)};
    if (frame.kind == Frame::Kind::Table)
        place.contentWidth = columns(frame.index).back();
    else
        place.contentWidth =
            std::max(m_codeWidths[size_t(number)], frame.longestLine * m_codeLetterWidth) +
            2 * codeSidePadding;
    return place;
}

int DocumentShape::scrollerAt(QPointF position)
{
    int found = -1;
    const auto hit = this->hit(position).place;
    if (m_blocks.texts.empty())
        return found;
    for (int flow = m_blocks.texts[size_t(hit.text)].flow,
             piece = m_blocks.texts[size_t(hit.text)].piece;
         flow >= 0;) {
        const auto &parent = m_blocks.flows[size_t(flow)];
        for (int frame = parent.pieces[size_t(piece)].frame; frame >= 0;
             frame = parent.frames[size_t(frame)].parent) {
            const int scroller = parent.frames[size_t(frame)].scroller;
            if (scroller >= 0 && this->scroller(scroller).viewport.contains(position) &&
                this->scroller(scroller).farthest() > 0)
                return scroller;
        }
        if (parent.row < 0)
            break;
        const auto &row = m_blocks.rows[size_t(parent.row)];
        flow = row.flow;
        piece = row.piece;
    }
    return found;
}

int DocumentShape::scrollerOf(int number) const
{
    const auto &text = m_blocks.texts[size_t(number)];
    for (int flow = text.flow, piece = text.piece;;) {
        const auto &parent = m_blocks.flows[size_t(flow)];
        for (int frame = parent.pieces[size_t(piece)].frame; frame >= 0;
             frame = parent.frames[size_t(frame)].parent) {
            if (const int scroller = parent.frames[size_t(frame)].scroller; scroller >= 0)
                return scroller;
        }
        if (parent.row < 0)
            return -1;
        const auto &row = m_blocks.rows[size_t(parent.row)];
        flow = row.flow;
        piece = row.piece;
    }
}

DocumentHit DocumentShape::hit(QPointF position)
{
    return m_blocks.texts.empty() ? DocumentHit{} : hitInFlow(0, position);
}

DocumentHit DocumentShape::hitInFlow(int flow, QPointF position)
{
    const auto &pieces = m_blocks.flows[size_t(flow)].pieces;
    if (pieces.empty())
        return {.place = nearestText(flow, 0)};
    const int number = std::min(pieceAt(flow, position.y()), int(pieces.size()) - 1);
    const auto &piece = pieces[size_t(number)];
    const auto &shape = m_flows[size_t(flow)].pieces[size_t(number)];
    QPointF local = position - QPointF(piece.left, shape.y);
    if (piece.kind == Piece::Kind::TableRow)
        return hitInRow(piece.index, local);
    if (piece.kind == Piece::Kind::Rule || piece.kind == Piece::Kind::Media)
        return {.place = nearestText(flow, number)};
    const auto &lines = text(piece.index);
    if (m_blocks.texts[size_t(piece.index)].role == TextBlock::Role::Code)
        local.rx() += offset(scrollerOf(piece.index));
    DocumentHit hit{.place = {piece.index, lines.offsetAt(local)}, .isOnText = lines.covers(local)};
    if (piece.kind == Piece::Kind::ExpandHeader && local.y() >= 0 && local.y() < shape.height &&
        local.x() >= -expandIndent)
        hit.expand = m_blocks.flows[size_t(flow)].frames[size_t(piece.frame)].index;
    return hit;
}

DocumentHit DocumentShape::hitInRow(int number, QPointF position)
{
    const auto &row = m_blocks.rows[size_t(number)];
    const auto &edges = columns(row.table);
    position.rx() += offset(m_blocks.tables[size_t(row.table)].scroller);
    size_t column = 0;
    while (column + 1 < row.cells.size() && position.x() >= edges[column + 1])
        ++column;
    return hitInFlow(row.cells[column].flow,
                     position - QPointF(edges[column] + cellSidePadding, cellPadding));
}

/// The end of the last text before a piece that has none, or the start of the document.
TextPlace DocumentShape::nearestText(int flow, int piece) const
{
    const auto isBefore = [&](const TextBlock &text) {
        return text.flow < flow || (text.flow == flow && text.piece < piece);
    };
    TextPlace nearest;
    for (int i = 0; i < int(m_blocks.texts.size()); ++i) {
        const auto &text = m_blocks.texts[size_t(i)];
        if (text.flow == flow && isBefore(text))
            nearest = {i, int(ADFInline::plainText(text.runs).size())};
    }
    return nearest;
}
