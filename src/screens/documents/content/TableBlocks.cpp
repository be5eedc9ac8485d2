// Tables: each row is a piece, and each cell a flow of its own.
#include "screens/documents/content/BlockBuilder.h"

#include <QScopedValueRollback>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace BlockMetrics;

void BlockBuilder::addTable(const ADFNode &node, const Surroundings &around)
{
    const int table = int(m_blocks.tables.size());
    const int scroller = m_blocks.scrollers++;
    m_blocks.tables.push_back({.scroller = scroller});
    const int frame =
        openFrame({.kind = Frame::Kind::Table, .scroller = scroller, .index = table}, around);
    auto inner = around;
    inner.frame = frame;
    for (const auto &row : childrenOf(node))
        addRow(row, table, inner);
    closeFrame(frame);
}

void BlockBuilder::addRow(const ADFNode &node, int table, const Surroundings &around)
{
    const auto &cells = childrenOf(node);
    if (cells.isEmpty())
        return;
    const int row = int(m_blocks.rows.size());
    auto &record = m_blocks.tables[size_t(table)];
    record.rows.push_back(row);
    record.columns = std::max(record.columns, int(cells.size()));
    m_blocks.rows.push_back({.table = table, .flow = m_flow, .piece = int(flow().pieces.size())});
    addPiece({.kind = Piece::Kind::TableRow, .index = row}, around);
    for (int column = 0; column < int(cells.size()); ++column)
        addCell(cells[column], row, column);
    m_joint = u"\n"_s;
}

void BlockBuilder::addCell(const ADFNode &node, int row, int column)
{
    const bool isHeader = node.type == u"tableHeader";
    const QScopedValueRollback inFlow(m_flow, int(m_blocks.flows.size()));
    const QScopedValueRollback gap(m_gap, 0.0);
    m_blocks.flows.push_back({.row = row, .column = column});
    m_blocks.rows[size_t(row)].cells.push_back({m_flow, isHeader});
    if (column > 0)
        m_joint = u"\t"_s;
    Surroundings inside;
    inside.role = isHeader ? TextBlock::Role::HeaderCell : TextBlock::Role::Cell;
    if (node.content)
        addChildren(node, cellSpacing, inside);
    else
        addOther(node, inside);
    flow().below = m_gap;
}
