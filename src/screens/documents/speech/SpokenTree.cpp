#include "screens/documents/speech/SpokenTree.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = SpokenNode::Kind;

QString textOf(const DocumentBlocks &blocks, int text)
{
    return ADFInline::plainText(blocks.texts[size_t(text)].runs);
}

class TreeMaker
{
public:
    TreeMaker(const DocumentBlocks &blocks, const std::vector<FocusStop> &stops)
        : m_blocks(blocks), m_stops(stops)
    {
    }

    std::vector<SpokenNode> make()
    {
        m_nodes.push_back({});
        addFlow(0, 0);
        return std::move(m_nodes);
    }

private:
    int add(SpokenNode node, int parent)
    {
        const int number = int(m_nodes.size());
        node.parent = parent;
        m_nodes.push_back(std::move(node));
        m_nodes[size_t(parent)].children.push_back(number);
        return number;
    }

    /// Adds the pieces of a flow, each below the nodes of the frames around it.
    void addFlow(int flow, int parent)
    {
        const auto &content = m_blocks.flows[size_t(flow)];
        std::vector<int> nodes(content.frames.size(), -1);
        for (int i = 0; i < int(content.pieces.size()); ++i) {
            const int frame = content.pieces[size_t(i)].frame;
            addPiece(flow, i, frame < 0 ? parent : nodeOf(flow, frame, parent, nodes));
        }
    }

    int nodeOf(int flow, int frame, int parent, std::vector<int> &nodes)
    {
        // From the outermost frame that has no node yet.
        std::vector<int> missing;
        const auto &frames = m_blocks.flows[size_t(flow)].frames;
        int at = frame;
        for (; at >= 0 && nodes[size_t(at)] < 0; at = frames[size_t(at)].parent)
            missing.push_back(at);
        int inside = at < 0 ? parent : nodes[size_t(at)];
        for (auto each = missing.rbegin(); each != missing.rend(); ++each) {
            inside = addFrame(flow, *each, inside);
            nodes[size_t(*each)] = inside;
        }
        return inside;
    }

    int addFrame(int flow, int number, int parent)
    {
        const auto &frame = m_blocks.flows[size_t(flow)].frames[size_t(number)];
        SpokenNode node{.flow = flow, .frame = number};
        switch (frame.kind) {
        case Frame::Kind::List:
        case Frame::Kind::TaskList:
            node.kind = Kind::List;
            break;
        case Frame::Kind::Item:
            node.kind = Kind::Item;
            node.name = frame.marker;
            break;
        case Frame::Kind::Task:
            node.kind = Kind::Task;
            node.isOn = frame.isDone;
            break;
        case Frame::Kind::Quote:
            node.kind = Kind::Quote;
            node.name = u"Citation"_s;
            break;
        case Frame::Kind::Panel:
            node.kind = Kind::Panel;
            node.name = frame.panel.meaning;
            break;
        case Frame::Kind::Table:
            node.kind = Kind::Table;
            node.name = u"Tableau"_s;
            break;
        case Frame::Kind::Code:
            node.kind = Kind::Code;
            node.name = u"Code"_s;
            break;
        case Frame::Kind::Expand:
            // Its header is a button, and what it shows stands beside that.
            return parent;
        }
        return add(std::move(node), parent);
    }

    void addPiece(int flow, int number, int parent)
    {
        const auto &piece = m_blocks.flows[size_t(flow)].pieces[size_t(number)];
        SpokenNode node{.kind = Kind::Paragraph, .flow = flow, .piece = number};
        switch (piece.kind) {
        case Piece::Kind::Text:
            addText(std::move(node), piece.index, parent);
            return;
        case Piece::Kind::ExpandHeader:
            node.kind = Kind::Expand;
            node.name = textOf(m_blocks, piece.index);
            node.stop = nextStop(piece.index, FocusStop::Kind::Expand);
            if (node.stop >= 0)
                node.isOn = m_blocks.expands[size_t(m_stops[size_t(node.stop)].index)].isOpen;
            break;
        case Piece::Kind::Rule:
            node.kind = Kind::Rule;
            break;
        case Piece::Kind::Media:
            node.kind = Kind::Media;
            node.media = piece.index;
            node.name = m_blocks.media[size_t(piece.index)].fileNames().join(u", "_s);
            break;
        case Piece::Kind::TableRow:
            node.kind = Kind::Row;
            addCells(piece.index, add(std::move(node), parent));
            return;
        }
        add(std::move(node), parent);
    }

    void addText(SpokenNode node, int text, int parent)
    {
        const auto &block = m_blocks.texts[size_t(text)];
        node.name = textOf(m_blocks, text);
        if (block.isHeading()) {
            node.kind = Kind::Heading;
            node.level = 1 + int(block.role) - int(TextBlock::Role::Heading1);
        }
        int owner = parent;
        if (m_nodes[size_t(parent)].kind == Kind::Task)
            m_nodes[size_t(parent)].name = node.name;
        else
            owner = add(std::move(node), parent);
        for (int stop = nextStop(text, FocusStop::Kind::Link); stop >= 0;
             stop = nextStop(text, FocusStop::Kind::Link, stop + 1)) {
            const auto &link = m_stops[size_t(stop)];
            add({.kind = Kind::Link,
                 .name = link.label,
                 .flow = block.flow,
                 .piece = block.piece,
                 .stop = stop},
                owner);
        }
    }

    void addCells(int row, int parent)
    {
        for (const auto &cell : m_blocks.rows[size_t(row)].cells) {
            const auto &record = m_blocks.rows[size_t(row)];
            const int node = add({.kind = cell.isHeader ? Kind::HeaderCell : Kind::Cell,
                                  .flow = record.flow,
                                  .piece = record.piece},
                                 parent);
            addFlow(cell.flow, node);
            QStringList texts;
            for (const int child : m_nodes[size_t(node)].children)
                texts.append(m_nodes[size_t(child)].name);
            m_nodes[size_t(node)].name = texts.join(u' ');
        }
    }

    /// The first stop of a kind in a text, from a number on; -1 if there is none.
    int nextStop(int text, FocusStop::Kind kind, int from = 0) const
    {
        const auto start = std::max<std::ptrdiff_t>(
            from, std::ranges::lower_bound(m_stops, text, {}, &FocusStop::text) - m_stops.begin());
        for (auto i = size_t(start); i < m_stops.size() && m_stops[i].text == text; ++i) {
            if (m_stops[i].kind == kind)
                return int(i);
        }
        return -1;
    }

    const DocumentBlocks &m_blocks;
    const std::vector<FocusStop> &m_stops;
    std::vector<SpokenNode> m_nodes;
};

} // namespace

std::vector<SpokenNode> spokenTree(const DocumentBlocks &blocks,
                                   const std::vector<FocusStop> &stops)
{
    return TreeMaker(blocks, stops).make();
}
