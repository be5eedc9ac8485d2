#pragma once

#include "screens/documents/layout/DocumentShape.h"

class QPainter;

/// What is drawn of a document besides its content.
struct DocumentMarks
{
    TextRange selection;
    /// The rectangles of what has the keyboard focus, around which a ring is drawn.
    QList<QRectF> focus;
    /// The block that shows a scroll bar, or -1.
    int scroller = -1;
};

/// Draws a part of a document.
class DocumentPainter
{
public:
    /// `scale` is the number of device pixels for each logical pixel.
    DocumentPainter(QPainter &painter, DocumentShape &shape, const DocumentMarks &marks,
                    double scale)
        : m_painter(painter), m_shape(shape), m_marks(marks), m_pixel(1 / scale)
    {
    }

    /// Draws everything that intersects a rectangle of the document.
    void paint(const QRectF &visible);

private:
    void paintFlow(int flow);
    void paintFrame(int flow, int frame);
    void paintMarker(int flow, const Frame &frame);
    void paintTask(int flow, const Frame &frame);
    void paintPanel(int flow, const Frame &frame, const QRectF &box);
    void paintPiece(int flow, int piece);
    void paintText(int number);
    void paintExpandHeader(int flow, int piece);
    void paintRow(int number);
    void paintCell(const TableRow &row, int column, const QRectF &box);
    void paintScrollBar();
    void paintFocus();
    void fill(const QRectF &box, double radius, const QColor &color);
    void paintSymbolAt(const QString &name, const QColor &color, const QRectF &box);
    double middleOfFirstLine(int flow, const Frame &frame);
    const TextShape *firstText(int flow, const Frame &frame);
    bool isVisible(const QRectF &box) const
    {
        return box.top() <= m_visible.bottom() && box.bottom() >= m_visible.top();
    }

    QPainter &m_painter;
    DocumentShape &m_shape;
    const DocumentMarks &m_marks;
    /// The size of a device pixel.
    double m_pixel;
    QRectF m_visible;
};
