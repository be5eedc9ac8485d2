#include "screens/documents/content/CopiedText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

InlineRuns slice(const InlineRuns &runs, TextRange::Part part)
{
    InlineRuns taken;
    int offset = 0;
    for (const auto &run : runs) {
        const int start = std::max(part.start - offset, 0);
        const int end = std::min(part.end - offset, int(run.text.size()));
        if (start < end) {
            taken.append(run);
            taken.back().text = run.text.sliced(start, end - start);
        }
        offset += int(run.text.size());
    }
    return taken;
}

InlineRuns selectedRuns(const DocumentBlocks &blocks, int text, const TextRange &range)
{
    const auto &runs = blocks.texts[size_t(text)].runs;
    return slice(runs, range.within(text, int(ADFInline::plainText(runs).size())));
}

QString runHtml(const InlineRun &run)
{
    QString html = run.text.toHtmlEscaped().replace(u'\n', "<br>"_L1);
    const auto wrap = [&html](bool isWanted, QStringView tag) {
        if (isWanted)
            html = u"<%1>%2</%1>"_s.arg(tag, html);
    };
    wrap(run.isCode, u"code");
    wrap(run.isStrong || run.kind == InlineRun::Kind::Status, u"b");
    wrap(run.isEmphasized, u"i");
    wrap(run.isUnderlined, u"u");
    wrap(run.isStruck, u"s");
    if (!run.link.isEmpty())
        html = u"<a href=\"%1\">%2</a>"_s.arg(run.link.toHtmlEscaped(), html);
    return html;
}

QString textHtml(const TextBlock &text, const InlineRuns &runs)
{
    QString html;
    for (const auto &run : runs)
        html += text.role == TextBlock::Role::Code ? run.text.toHtmlEscaped() : runHtml(run);
    switch (text.role) {
    case TextBlock::Role::Heading1:
        return u"<h1>%1</h1>"_s.arg(html);
    case TextBlock::Role::Heading2:
        return u"<h2>%1</h2>"_s.arg(html);
    case TextBlock::Role::Heading3:
        return u"<h3>%1</h3>"_s.arg(html);
    case TextBlock::Role::Code:
        return u"<pre>%1</pre>"_s.arg(html);
    default:
        return u"<p>%1</p>"_s.arg(html);
    }
}

QString tagOf(const Frame &frame)
{
    switch (frame.kind) {
    case Frame::Kind::List:
        return frame.isOrdered ? u"ol"_s : u"ul"_s;
    case Frame::Kind::TaskList:
        return u"ul"_s;
    case Frame::Kind::Item:
    case Frame::Kind::Task:
        return u"li"_s;
    case Frame::Kind::Quote:
        return u"blockquote"_s;
    case Frame::Kind::Table:
        return u"table"_s;
    case Frame::Kind::Panel:
    case Frame::Kind::Expand:
    case Frame::Kind::Code:
        break;
    }
    return u"div"_s;
}

/// Writes the blocks of a flow, with the tags of the frames around them.
class HtmlWriter
{
public:
    HtmlWriter(const DocumentBlocks &blocks, const TextRange &range)
        : m_blocks(blocks), m_range(range)
    {
    }

    QString flow(int number)
    {
        const auto &flow = m_blocks.flows[size_t(number)];
        std::vector<int> open;
        QString html;
        for (const auto &piece : flow.pieces) {
            const QString content = pieceHtml(piece);
            if (content.isEmpty())
                continue;
            html += moved(flow, open, piece.frame) + content;
        }
        return html + moved(flow, open, -1);
    }

private:
    /// The tags from the open frames to those around a piece.
    static QString moved(const Flow &flow, std::vector<int> &open, int frame)
    {
        std::vector<int> wanted;
        for (; frame >= 0; frame = flow.frames[size_t(frame)].parent)
            wanted.insert(wanted.begin(), frame);
        const auto common = std::ranges::mismatch(open, wanted).in1 - open.begin();
        QString html;
        for (; std::ssize(open) > common; open.pop_back())
            html += u"</%1>"_s.arg(tagOf(flow.frames[size_t(open.back())]));
        for (auto i = common; i < std::ssize(wanted); ++i) {
            open.push_back(wanted[size_t(i)]);
            html += u"<%1>"_s.arg(tagOf(flow.frames[size_t(open.back())]));
        }
        return html;
    }

    QString pieceHtml(const Piece &piece)
    {
        if (piece.kind == Piece::Kind::TableRow)
            return rowHtml(m_blocks.rows[size_t(piece.index)]);
        if (piece.kind != Piece::Kind::Text && piece.kind != Piece::Kind::ExpandHeader)
            return {};
        const auto runs = selectedRuns(m_blocks, piece.index, m_range);
        return runs.isEmpty() ? QString() : textHtml(m_blocks.texts[size_t(piece.index)], runs);
    }

    QString rowHtml(const TableRow &row)
    {
        QString cells;
        bool isSelected = false;
        for (const auto &cell : row.cells) {
            const QString content = flow(cell.flow);
            isSelected = isSelected || !content.isEmpty();
            cells += u"<%1>%2</%1>"_s.arg(cell.isHeader ? u"th"_s : u"td"_s, content);
        }
        return isSelected ? u"<tr>%1</tr>"_s.arg(cells) : QString();
    }

    const DocumentBlocks &m_blocks;
    const TextRange &m_range;
};

} // namespace

QString CopiedText::plain(const DocumentBlocks &blocks, const TextRange &range)
{
    QString copied;
    for (int i = range.first.text; i <= range.last.text && i < int(blocks.texts.size()); ++i) {
        if (i > range.first.text)
            copied += blocks.texts[size_t(i)].joint;
        copied += ADFInline::plainText(selectedRuns(blocks, i, range));
    }
    return copied;
}

QString CopiedText::html(const DocumentBlocks &blocks, const TextRange &range)
{
    return HtmlWriter(blocks, range).flow(0);
}
