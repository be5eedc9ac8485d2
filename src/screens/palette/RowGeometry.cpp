#include "screens/palette/RowGeometry.h"

#include <algorithm>
#include <ranges>

RowGeometry::RowGeometry(const RowHeights &heights, const QList<PaletteRow> &rows)
    : m_heights(heights), m_count(int(rows.size()))
{
    for (int row = 0; row < m_count; ++row) {
        if (!rows[row].sectionTitle.isEmpty())
            m_titled.append(row);
    }
}

qreal RowGeometry::height() const
{
    return top(m_count) + m_heights.below;
}

qreal RowGeometry::top(int row) const
{
    const auto titlesBefore = std::ranges::lower_bound(m_titled, row) - m_titled.begin();
    return m_heights.above + row * m_heights.row + qreal(titlesBefore) * m_heights.title;
}

qreal RowGeometry::bottom(int row) const
{
    return top(row + 1);
}

RowRange RowGeometry::between(qreal top, qreal bottom) const
{
    const auto rows = std::views::iota(0, m_count);
    const auto endsAbove = [&](int row) { return this->bottom(row) <= top; };
    const auto beginsAbove = [&](int row) { return this->top(row) < bottom; };
    const int first = int(std::ranges::partition_point(rows, endsAbove) - rows.begin());
    const int end = int(std::ranges::partition_point(rows, beginsAbove) - rows.begin());
    return {first, std::max(0, end - first)};
}

qreal RowGeometry::topShowing(int row, qreal top, qreal viewHeight) const
{
    if (row < 0 || row >= m_count)
        return bounded(top, viewHeight);
    const qreal upper = row == 0 ? 0 : this->top(row);
    const qreal lower =
        row == m_count - 1 ? height() : std::min(bottom(row) + m_heights.fade, height());
    return bounded(std::min(std::max(top, lower - viewHeight), upper), viewHeight);
}

qreal RowGeometry::bounded(qreal top, qreal viewHeight) const
{
    return std::clamp(top, 0.0, std::max(0.0, height() - viewHeight));
}
