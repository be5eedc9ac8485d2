#pragma once

#include "screens/documents/content/ADFInline.h"
#include "screens/documents/content/MediaBlock.h"
#include "screens/documents/content/PanelStyle.h"

#include <QSet>

#include <vector>

/// A text that is laid out on its own: a paragraph, a heading, the title of an expand, a part of a code block.
struct TextBlock
{
    enum class Role {
        Body,       ///< in the font that the view was given
        Cell,       ///< 12 points
        HeaderCell, ///< 12 points, semibold
        Heading1,   ///< 20 points, semibold
        Heading2,   ///< 17 points, semibold
        Heading3,   ///< 15 points, semibold
        Code,       ///< 12 points, monospaced; its lines are not wrapped
        Title,      ///< the title of an expand, semibold
    };

    Role role = Role::Body;
    InlineRuns runs;
    /// In the secondary colour.
    bool isSecondary = false;
    bool isStruck = false;
    /// What separates the text from the previous one when both are copied: a line feed, a tab between two cells, or
    /// nothing if the text continues the previous one.
    QString joint;
    /// The place of the text: its flow, and its piece in the flow.
    int flow = 0;
    int piece = 0;

    bool isHeading() const { return role >= Role::Heading1 && role <= Role::Heading3; }
};

/// One row of a flow.
struct Piece
{
    enum class Kind { Text, ExpandHeader, Rule, Media, TableRow };

    Kind kind = Kind::Text;
    /// The number of the text, the media block or the table row; of an expand header, the number of its title.
    int index = -1;
    /// The innermost frame around the piece, or -1.
    int frame = -1;
    /// The distance from the piece above or from the top of the flow, in logical pixels: the spacing and the paddings
    /// of the frames that end or begin between the two.
    double gap = 0;
    /// The distances from the left and the right edge of the flow, in logical pixels.
    double left = 0;
    double right = 0;
};

/// A part of a flow that is drawn or spoken as a whole: a range of pieces.
struct Frame
{
    enum class Kind { List, Item, TaskList, Task, Quote, Panel, Code, Table, Expand };

    Kind kind = Kind::List;
    /// The enclosing frame, or -1.
    int parent = -1;
    /// The first piece, and the one after the last.
    int first = 0;
    int end = 0;
    /// The distances from the edges of the flow, in logical pixels.
    double left = 0;
    double right = 0;
    /// The distances from the top of the frame to its first piece and from its last piece to its bottom.
    double above = 0;
    double below = 0;
    /// The marker of a list item: "•", or a number and ".".
    QString marker;
    /// The list is numbered.
    bool isOrdered = false;
    /// The task is done, or the decision is taken.
    bool isDone = false;
    PanelStyle panel;
    /// Of a code block and of a table: which offset scrolls it sideways. -1 for the others.
    int scroller = -1;
    /// The number of characters in the longest line of a code block.
    int longestLine = 0;
    /// The number of the expand or the table.
    int index = -1;
};

/// Pieces below each other: the document itself, or the content of a table cell.
struct Flow
{
    std::vector<Piece> pieces;
    std::vector<Frame> frames;
    /// The distance from the last piece to the bottom of the flow.
    double below = 0;
    /// The row in which the flow is a cell, and its column; -1 for the document.
    int row = -1;
    int column = 0;
};

struct TableCell
{
    int flow = 0;
    bool isHeader = false;
};

struct TableRow
{
    int table = 0;
    /// The flow and the piece of the row.
    int flow = 0;
    int piece = 0;
    std::vector<TableCell> cells;
};

struct Table
{
    /// Its rows; those of a table within a cell can follow later.
    std::vector<int> rows;
    int columns = 0;
    int scroller = 0;
};

/// An expand is identified by its number in the document, counted through closed ones, and its title.
struct ExpandKey
{
    int number = 0;
    QString title;

    bool operator==(const ExpandKey &) const = default;
};

inline size_t qHash(const ExpandKey &key, size_t seed = 0)
{
    return qHashMulti(seed, key.number, key.title);
}

struct Expand
{
    ExpandKey key;
    bool isOpen = false;
};

/// How a document is divided into blocks.
struct BlockOptions
{
    /// Between the blocks of the document, in logical pixels.
    double spacing = 10;
    /// Of paragraphs, in logical pixels.
    double fontSize = 14;
    /// The factor of all font sizes, for the widths of markers.
    double textScale = 1;
    InlineContext context;
    QSet<ExpandKey> open;
};

/// A document as a list of texts and other blocks, each with its place. The pieces of a closed expand are left out,
/// except for its header. Widths of texts are not known here, so a block has no height yet.
struct DocumentBlocks
{
    /// The document itself is the first.
    std::vector<Flow> flows;
    /// All texts in the order of the document.
    std::vector<TextBlock> texts;
    std::vector<MediaBlock> media;
    std::vector<Table> tables;
    std::vector<TableRow> rows;
    std::vector<Expand> expands;
    /// The number of blocks that scroll sideways.
    int scrollers = 0;

    /// Divides any node into blocks.
    static DocumentBlocks of(const ADFNode &document, const BlockOptions &options);
};

/// Constants of the look, in logical pixels.
namespace BlockMetrics {

constexpr double containerSpacing = 6;
constexpr double listSpacing = 5;
constexpr double cellSpacing = 4;
constexpr double markerGap = 6;
constexpr double bulletWidth = 10;
constexpr double numberWidth = 18;
constexpr double taskSymbol = 16;
constexpr double taskGap = 8;
constexpr double quoteBar = 3;
constexpr double quoteGap = 10;
constexpr double panelIcon = 16;
constexpr double panelGap = 10;
constexpr double panelPadding = 10;
constexpr double panelSidePadding = 12;
constexpr double codePadding = 10;
constexpr double codeSidePadding = 12;
constexpr double cellPadding = 6;
constexpr double cellSidePadding = 8;
constexpr double narrowestColumn = 90;
/// Texts of a cell wrap at this width. Columns that are wider than `shrunkColumn` shrink down to it before a table
/// scrolls.
constexpr double widestColumn = 320;
constexpr double shrunkColumn = 150;
constexpr double expandIndent = 18;
constexpr double rulePadding = 4;
/// Further space above a heading of the first two sizes, and above the third.
constexpr double headingSpace = 4;
constexpr double smallHeadingSpace = 2;
/// The radius of code blocks, and that of panels.
constexpr double codeRadius = 8;
constexpr double panelRadius = 10;

} // namespace BlockMetrics
