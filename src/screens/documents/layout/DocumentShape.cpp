#include "screens/documents/layout/DocumentShape.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

using namespace BlockMetrics;

namespace {

/// The height of a picture that is not known yet.
constexpr double unknownPicture = 180;
/// Texts are never narrower, however deep they are nested.
constexpr double narrowestText = 40;

/// The number of line feeds. A search examines several characters at once, which `QString::count` does not.
double lineFeeds(const QString &text)
{
    double count = 0;
    for (auto at = text.indexOf(u'\n'); at >= 0; at = text.indexOf(u'\n', at + 1))
        ++count;
    return count;
}

} // namespace

DocumentShape::DocumentShape(DocumentBlocks blocks, const DocumentStyle &style, double bodySize)
    : m_blocks(std::move(blocks)), m_style(style), m_bodySize(bodySize)
{
    constexpr double averageLetter = 0.92;
    m_letterWidth = QFontMetricsF(style.font(TextBlock::Role::Body, bodySize)).averageCharWidth() *
                    averageLetter;
    m_codeLetterWidth =
        QFontMetricsF(style.font(TextBlock::Role::Code, bodySize)).horizontalAdvance(u' ');
    m_columns.resize(m_blocks.tables.size());
    m_columnWidths.resize(m_blocks.tables.size());
    m_mediaHeights.resize(m_blocks.media.size(), unknownPicture);
    m_offsets.resize(size_t(m_blocks.scrollers));
    m_scrollers.resize(size_t(m_blocks.scrollers), {-1, -1});
    m_codeWidths.resize(size_t(m_blocks.scrollers));
    m_flows.resize(m_blocks.flows.size());
    for (size_t i = 0; i < m_flows.size(); ++i) {
        const auto &flow = m_blocks.flows[i];
        m_flows[i].pieces.resize(flow.pieces.size());
        for (size_t j = 0; j < flow.frames.size(); ++j) {
            if (const int scroller = flow.frames[j].scroller; scroller >= 0)
                m_scrollers[size_t(scroller)] = {int(i), int(j)};
        }
    }
}

DocumentShape::~DocumentShape() = default;

void DocumentShape::setWidth(double width)
{
    auto &root = m_flows.front();
    root.width = width;
    const auto &pieces = m_blocks.flows.front().pieces;
    for (size_t i = 0; i < pieces.size(); ++i) {
        dropLines(0, int(i));
        root.pieces[i].isExact = false;
        root.pieces[i].height = estimate(0, pieces[i]);
    }
    for (auto &edges : m_columns)
        edges.clear();
    m_nextEstimate = 0;
    place(0);
}

void DocumentShape::setMediaHeight(int media, double height)
{
    auto &known = m_mediaHeights[size_t(media)];
    if (known == height)
        return;
    known = height;
    // Pieces with media are few, and each looks its height up when it is made exact again.
    for (size_t i = 0; i < m_flows.size(); ++i) {
        const auto &flow = m_blocks.flows[i];
        for (size_t j = 0; j < flow.pieces.size(); ++j) {
            const auto &piece = flow.pieces[j];
            if (piece.kind != Piece::Kind::Media || piece.index != media)
                continue;
            m_flows[i].pieces[j].height = height;
            place(int(i));
            for (int row = flow.row; row >= 0;) {
                const auto &place = m_blocks.rows[size_t(row)];
                shapePiece(place.flow, place.piece);
                this->place(place.flow);
                row = m_blocks.flows[size_t(place.flow)].row;
            }
            return;
        }
    }
}

double DocumentShape::pieceWidth(int flow, const Piece &piece) const
{
    return std::max(narrowestText, m_flows[size_t(flow)].width - piece.left - piece.right);
}

double DocumentShape::estimatedText(const TextBlock &text, double width) const
{
    const QFont font = m_style.font(text.role, m_bodySize);
    const double size = font.pixelSize();
    double letters = 0;
    double breaks = 0;
    for (const auto &run : text.runs) {
        letters += double(run.text.size());
        breaks += lineFeeds(run.text);
    }
    if (text.role == TextBlock::Role::Code)
        return (breaks + 1) * std::round(1.5 * size);
    const double perLine = std::max(1.0, width / (m_letterWidth * size / m_bodySize));
    return (breaks + std::max(1.0, std::ceil(letters / perLine))) * (std::ceil(1.21 * size) + 2);
}

double DocumentShape::estimate(int flow, const Piece &piece) const
{
    switch (piece.kind) {
    case Piece::Kind::Rule:
        return 1;
    case Piece::Kind::Media:
        return m_mediaHeights[size_t(piece.index)];
    case Piece::Kind::TableRow: {
        double highest = 0;
        for (const auto &cell : m_blocks.rows[size_t(piece.index)].cells) {
            double height = 2 * cellPadding;
            for (const auto &inner : m_blocks.flows[size_t(cell.flow)].pieces) {
                if (inner.kind == Piece::Kind::Text)
                    height += estimatedText(m_blocks.texts[size_t(inner.index)], widestColumn / 2);
            }
            highest = std::max(highest, height);
        }
        return highest;
    }
    case Piece::Kind::Text:
    case Piece::Kind::ExpandHeader:
        break;
    }
    return estimatedText(m_blocks.texts[size_t(piece.index)], pieceWidth(flow, piece));
}

/// Computes the positions of the pieces from their heights.
void DocumentShape::place(int number)
{
    auto &shape = m_flows[size_t(number)];
    const auto &flow = m_blocks.flows[size_t(number)];
    double y = 0;
    for (size_t i = 0; i < flow.pieces.size(); ++i) {
        y += flow.pieces[i].gap;
        shape.pieces[i].y = y;
        y += shape.pieces[i].height;
    }
    shape.height = y + flow.below;
}

void DocumentShape::shapeText(int number)
{
    const auto &text = m_blocks.texts[size_t(number)];
    auto &shape = m_flows[size_t(text.flow)].pieces[size_t(text.piece)];
    const auto &piece = m_blocks.flows[size_t(text.flow)].pieces[size_t(text.piece)];
    if (!shape.text) {
        shape.text = std::make_unique<TextShape>(text, m_style, m_bodySize);
        shape.text->layOut(pieceWidth(text.flow, piece));
    }
    shape.height = shape.text->height();
    shape.isExact = true;
    if (text.role == TextBlock::Role::Code && piece.frame >= 0) {
        const auto &frame = m_blocks.flows[size_t(text.flow)].frames[size_t(piece.frame)];
        auto &widest = m_codeWidths[size_t(frame.scroller)];
        widest = std::max(widest, shape.text->width());
    }
}

void DocumentShape::shapePiece(int flow, int number)
{
    const auto &piece = m_blocks.flows[size_t(flow)].pieces[size_t(number)];
    auto &shape = m_flows[size_t(flow)].pieces[size_t(number)];
    switch (piece.kind) {
    case Piece::Kind::Text:
    case Piece::Kind::ExpandHeader:
        shapeText(piece.index);
        break;
    case Piece::Kind::TableRow:
        shape.height = shapeRow(piece.index);
        break;
    case Piece::Kind::Rule:
    case Piece::Kind::Media:
        shape.height = estimate(flow, piece);
        break;
    }
    shape.isExact = true;
}

double DocumentShape::shapeRow(int number)
{
    const auto &row = m_blocks.rows[size_t(number)];
    double highest = 0;
    for (const auto &cell : row.cells) {
        const int flow = cell.flow;
        auto &shape = m_flows[size_t(flow)];
        setCellWidth(flow);
        for (size_t i = 0; i < shape.pieces.size(); ++i)
            shapePiece(flow, int(i));
        place(flow);
        highest = std::max(highest, shape.height);
    }
    return highest + 2 * cellPadding;
}

void DocumentShape::makeExact(double top, double bottom)
{
    auto &pieces = m_flows.front().pieces;
    bool hasChanged = false;
    auto i = size_t(pieceAt(0, top));
    double y = i < pieces.size() ? pieces[i].y : 0;
    for (; i < pieces.size() && y <= bottom; ++i) {
        if (!pieces[i].isExact) {
            shapePiece(0, int(i));
            hasChanged = true;
        }
        y += pieces[i].height;
        if (i + 1 < pieces.size())
            y += m_blocks.flows.front().pieces[i + 1].gap;
    }
    if (hasChanged)
        place(0);
}

bool DocumentShape::makeSomeExact(int characters)
{
    auto &pieces = m_flows.front().pieces;
    const auto first = m_nextEstimate;
    for (; characters > 0 && size_t(m_nextEstimate) < pieces.size(); ++m_nextEstimate) {
        auto &piece = pieces[size_t(m_nextEstimate)];
        if (piece.isExact)
            continue;
        shapePiece(0, m_nextEstimate);
        constexpr int cost = 60;
        characters -= cost + (piece.text ? piece.text->length() : 8 * cost);
        dropLines(0, m_nextEstimate);
    }
    if (m_nextEstimate == first)
        return false;
    place(0);
    return true;
}

void DocumentShape::dropLines(int flow, int number)
{
    m_flows[size_t(flow)].pieces[size_t(number)].text.reset();
    const auto &piece = m_blocks.flows[size_t(flow)].pieces[size_t(number)];
    if (piece.kind != Piece::Kind::TableRow)
        return;
    for (const auto &cell : m_blocks.rows[size_t(piece.index)].cells) {
        const auto count = m_flows[size_t(cell.flow)].pieces.size();
        for (size_t i = 0; i < count; ++i)
            dropLines(cell.flow, int(i));
    }
}

void DocumentShape::release(double top, double bottom)
{
    const auto &pieces = m_flows.front().pieces;
    for (size_t i = 0; i < pieces.size(); ++i) {
        if (pieces[i].y + pieces[i].height < top || pieces[i].y > bottom)
            dropLines(0, int(i));
    }
}

void DocumentShape::forgetLines()
{
    for (size_t i = 0; i < m_flows.front().pieces.size(); ++i)
        dropLines(0, int(i));
}

const TextShape &DocumentShape::text(int number)
{
    const auto &text = m_blocks.texts[size_t(number)];
    auto &shape = m_flows[size_t(text.flow)].pieces[size_t(text.piece)];
    if (!shape.text) {
        const double height = shape.height;
        setCellWidth(text.flow);
        shapeText(number);
        // An exact height does not change. An estimate is replaced by `makeExact`, which places the pieces below, too.
        shape.isExact = shape.height == height;
        shape.height = height;
    }
    return *shape.text;
}

int DocumentShape::pieceAt(int flow, double y) const
{
    const auto &pieces = m_flows[size_t(flow)].pieces;
    const auto found = std::ranges::upper_bound(
        pieces, y, {}, [](const PieceShape &piece) { return piece.y + piece.height; });
    return int(found - pieces.begin());
}
