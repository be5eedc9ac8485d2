#pragma once

#include "state/models/RowDiff.h"
#include "state/palette/PaletteRow.h"

/// The heights of the palette's rows, in logical pixels.
struct RowHeights
{
    qreal row = 0;
    /// The height that the title of a section adds to its first row.
    qreal title = 0;
    /// The space before the first row and after the last.
    qreal above = 0;
    qreal below = 0;
    /// The height of the fade at the view's lower edge while there are rows below.
    qreal fade = 0;

    bool operator==(const RowHeights &) const = default;
};

/// The vertical positions of the palette's rows, in logical pixels from the top of the scrolled content. Rows differ in
/// height only by their section titles, so the position of a row is known before the row exists.
class RowGeometry
{
public:
    RowGeometry() = default;
    RowGeometry(const RowHeights &heights, const QList<PaletteRow> &rows);

    /// The height of the scrolled content.
    qreal height() const;
    /// The top of a row, which includes the title of its section if it has one.
    qreal top(int row) const;
    qreal bottom(int row) const;
    /// The rows that intersect the range between two heights.
    RowRange between(qreal top, qreal bottom) const;
    /// The scroll position nearest to `top` at which a view of this height shows the whole row, clear of the fade. The
    /// first and the last row scroll to the very end. For a row that does not exist, returns `top`, limited to the
    /// valid range.
    qreal topShowing(int row, qreal top, qreal viewHeight) const;
    /// The nearest valid scroll position.
    qreal bounded(qreal top, qreal viewHeight) const;

private:
    RowHeights m_heights;
    int m_count = 0;
    /// The rows that have a section title, in ascending order.
    QList<int> m_titled;
};
