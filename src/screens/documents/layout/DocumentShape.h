#pragma once

#include "screens/documents/layout/TextShape.h"

#include <QRectF>

#include <memory>
#include <vector>

/// Where a block that scrolls sideways is shown, in the coordinates of the document, and how wide its content is.
struct ScrollerPlace
{
    QRectF viewport;
    double contentWidth = 0;

    double farthest() const { return std::max(0.0, contentWidth - viewport.width()); }
};

/// What is at a position of a document.
struct DocumentHit
{
    /// The nearest place of the text.
    TextPlace place;
    /// There is a character at the position.
    bool isOnText = false;
    /// The number of the expand whose header is there, or -1.
    int expand = -1;
};

/// A document that is laid out at a width. The heights of blocks out of sight are estimated until they are needed or
/// until there is time. All lengths are logical pixels, from the top left corner of the document.
class DocumentShape
{
public:
    DocumentShape(DocumentBlocks blocks, const DocumentStyle &style, double bodySize);
    ~DocumentShape();
    DocumentShape(const DocumentShape &) = delete;
    DocumentShape &operator=(const DocumentShape &) = delete;

    struct PieceShape
    {
        double y = 0;
        double height = 0;
        bool isExact = false;
        /// The lines at the present width. Present while the piece is in sight.
        std::unique_ptr<TextShape> text;
    };
    struct FlowShape
    {
        double width = 0;
        double height = 0;
        std::vector<PieceShape> pieces;
    };

    const DocumentBlocks &blocks() const { return m_blocks; }
    const DocumentStyle &style() const { return m_style; }
    double bodySize() const { return m_bodySize; }
    const FlowShape &flow(int number) const { return m_flows[size_t(number)]; }
    double width() const { return m_flows.front().width; }
    double height() const { return m_flows.front().height; }

    /// Sets the width of the document. All heights are estimates then.
    void setWidth(double width);
    /// Sets the height of the item that shows a media block.
    void setMediaHeight(int media, double height);
    double mediaHeight(int media) const { return m_mediaHeights[size_t(media)]; }

    /// Makes the heights exact between two vertical positions.
    void makeExact(double top, double bottom);
    /// Makes further heights exact, until a number of characters is laid out. False if all heights are exact already.
    bool makeSomeExact(int characters);
    /// Frees the lines of texts outside two vertical positions; their heights are kept.
    void release(double top, double bottom);
    /// The colours have changed: the lines of all texts are laid out anew when they are needed.
    void forgetLines();

    /// The lines of a text, which are laid out if necessary.
    const TextShape &text(int number);
    /// The top left corner of a text or of the first cell of a row, with regard to what is scrolled sideways.
    QPointF origin(int text);
    QRectF pieceBox(int flow, int piece);
    /// The top left corner of a flow.
    QPointF flowOrigin(int flow);
    /// The rectangle of a frame of a flow.
    QRectF frameBox(int flow, int frame);
    /// The left edges of the columns of a table, and the right edge of the last.
    const std::vector<double> &columns(int table);

    double offset(int scroller) const { return m_offsets[size_t(scroller)]; }
    void setOffset(int scroller, double offset);
    ScrollerPlace scroller(int number);
    /// The scroller at a position, or -1.
    int scrollerAt(QPointF position);
    /// The scroller that a text is in, or -1; the innermost one.
    int scrollerOf(int text) const;

    DocumentHit hit(QPointF position);
    /// The first piece of a flow that ends below a vertical position of the flow.
    int pieceAt(int flow, double y) const;

private:
    double pieceWidth(int flow, const Piece &piece) const;
    double estimate(int flow, const Piece &piece) const;
    double estimatedText(const TextBlock &text, double width) const;
    void shapePiece(int flow, int piece);
    double shapeRow(int row);
    void shapeText(int number);
    void place(int flow);
    void dropLines(int flow, int piece);
    std::vector<double> measuredColumns(int table);
    std::vector<double> placedColumns(int table);
    double naturalWidth(int flow);
    void keepFittingLines(int table);
    void setCellWidth(int flow);
    DocumentHit hitInFlow(int flow, QPointF position);
    DocumentHit hitInRow(int row, QPointF position);
    TextPlace nearestText(int flow, int piece) const;

    DocumentBlocks m_blocks;
    const DocumentStyle &m_style;
    double m_bodySize;
    double m_letterWidth;
    double m_codeLetterWidth;
    std::vector<FlowShape> m_flows;
    /// The edges of the columns of each table at the present width, and the widths that their texts need.
    std::vector<std::vector<double>> m_columns;
    std::vector<std::vector<double>> m_columnWidths;
    std::vector<double> m_mediaHeights;
    std::vector<double> m_offsets;
    /// The flow and the frame of each scroller.
    std::vector<std::pair<int, int>> m_scrollers;
    /// The widths of code blocks as far as they are laid out.
    std::vector<double> m_codeWidths;
    /// The first piece of the document whose height may be an estimate.
    int m_nextEstimate = 0;
};
