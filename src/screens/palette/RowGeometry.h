#pragma once

#include "state/models/RowDiff.h"
#include "state/palette/PaletteRow.h"

/// What the rows of the palette are as high as, in logical pixels.
struct RowHeights
{
    qreal row = 0;
    /// What a section's title adds to its first row.
    qreal title = 0;
    /// Before the first row and behind the last.
    qreal above = 0;
    qreal below = 0;
    /// What is drawn over the view's lower end while there are rows below.
    qreal fade = 0;

    bool operator==(const RowHeights &) const = default;
};

/// Where the rows of the palette lie under each other, in logical pixels from the upper end of what scrolls. Only a row's
/// title tells it from others, so no row has to be made to know its place.
class RowGeometry
{
public:
    RowGeometry() = default;
    RowGeometry(const RowHeights &heights, const QList<PaletteRow> &rows);

    /// All that scrolls.
    qreal height() const;
    /// A row begins with its section's title, if it has one.
    qreal top(int row) const;
    qreal bottom(int row) const;
    /// The rows of which something lies between two heights.
    RowRange between(qreal top, qreal bottom) const;
    /// The nearest place to scroll to, from `top`, at which a view of this height shows the whole row, clear of the fade, and at the first and
    /// the last row the very end. A row that there is not shows nothing: the answer is `top`, within what scrolls.
    qreal topShowing(int row, qreal top, qreal viewHeight) const;
    /// The nearest place within what scrolls.
    qreal bounded(qreal top, qreal viewHeight) const;

private:
    RowHeights m_heights;
    int m_count = 0;
    /// The rows with a title, ascending.
    QList<int> m_titled;
};
