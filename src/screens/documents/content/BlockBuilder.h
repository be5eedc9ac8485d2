#pragma once

#include "screens/documents/content/DocumentBlocks.h"

/// What the blocks inside a container inherit.
struct BlockSurroundings
{
    TextBlock::Role role = TextBlock::Role::Body;
    bool isSecondary = false;
    /// The innermost frame, or -1.
    int frame = -1;
    double left = 0;
    double right = 0;

    BlockSurroundings indented(double by) const
    {
        auto inner = *this;
        inner.left += by;
        return inner;
    }
};

/// Divides a document into blocks. It visits each node once, in document order.
class BlockBuilder
{
public:
    BlockBuilder(DocumentBlocks &blocks, const BlockOptions &options)
        : m_blocks(blocks), m_options(options)
    {
    }

    void build(const ADFNode &document);

private:
    using Surroundings = BlockSurroundings;

    static const QList<ADFNode> &childrenOf(const ADFNode &node)
    {
        static const QList<ADFNode> none;
        return node.content ? *node.content : none;
    }

    void addChildren(const ADFNode &node, double spacing, const Surroundings &around);
    template <typename Each>
    void stack(const QList<ADFNode> &nodes, double spacing, const Each &each);
    void addBlock(const ADFNode &node, const Surroundings &around);
    bool addText(const ADFNode &node, const Surroundings &around);
    bool addContainer(const ADFNode &node, const Surroundings &around);
    void addOther(const ADFNode &node, const Surroundings &around);

    void addParagraph(TextBlock text, const Surroundings &around);
    void addCode(const ADFNode &node, const Surroundings &around);
    void addList(const ADFNode &node, const Surroundings &around);
    void addTasks(const ADFNode &node, const Surroundings &around);
    void addTask(const ADFNode &node, const Surroundings &around);
    void addQuote(const ADFNode &node, const Surroundings &around);
    void addPanel(const ADFNode &node, const Surroundings &around);
    void addExpand(const ADFNode &node, const Surroundings &around);
    void countExpands(const ADFNode &node);
    void addTable(const ADFNode &node, const Surroundings &around);
    void addRow(const ADFNode &node, int table, const Surroundings &around);
    void addCell(const ADFNode &node, int row, int column);

    Flow &flow() { return m_blocks.flows[size_t(m_flow)]; }
    /// Opens a frame with a padding above its first piece, and returns its number.
    int openFrame(Frame frame, const Surroundings &around, double padding = 0);
    /// Closes the innermost frame. A frame without pieces is removed.
    void closeFrame(int frame, double padding = 0);
    /// Adds an empty text if the frame has no piece, because the frame is drawn all the same.
    void fillFrame(int frame, const Surroundings &around);
    void addPiece(Piece piece, const Surroundings &around);
    double markerWidth(qint64 number, const Surroundings &around) const;

    DocumentBlocks &m_blocks;
    const BlockOptions &m_options;
    /// The present flow.
    int m_flow = 0;
    /// The distance from the last piece, or from the top of the flow.
    double m_gap = 0;
    /// What separates the next text from the previous one.
    QString m_joint;
};
