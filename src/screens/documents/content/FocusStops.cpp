#include "screens/documents/content/FocusStops.h"

using namespace Qt::StringLiterals;

namespace {

void addLinks(const TextBlock &text, int number, std::vector<FocusStop> &stops)
{
    int offset = 0;
    bool continues = false;
    for (const auto &run : text.runs) {
        const int end = offset + int(run.text.size());
        if (!run.link.isEmpty() && (!continues || stops.back().link != run.link))
            stops.push_back({.text = number, .start = offset, .link = run.link});
        if (!run.link.isEmpty()) {
            stops.back().end = end;
            stops.back().label += run.text;
        }
        continues = !run.link.isEmpty();
        offset = end;
    }
}

void addScrollers(const DocumentBlocks &blocks, const TextBlock &text, int number, QSet<int> &known,
                  std::vector<FocusStop> &stops)
{
    const auto &flow = blocks.flows[size_t(text.flow)];
    const auto add = [&](int frame, const Flow &in) {
        for (; frame >= 0; frame = in.frames[size_t(frame)].parent) {
            const int scroller = in.frames[size_t(frame)].scroller;
            if (scroller < 0 || known.contains(scroller))
                continue;
            known.insert(scroller);
            stops.push_back({.kind = FocusStop::Kind::Scroller, .text = number, .index = scroller});
        }
    };
    if (flow.row >= 0) {
        const auto &row = blocks.rows[size_t(flow.row)];
        const auto &outer = blocks.flows[size_t(row.flow)];
        add(outer.pieces[size_t(row.piece)].frame, outer);
    }
    add(flow.pieces[size_t(text.piece)].frame, flow);
}

} // namespace

std::vector<FocusStop> focusStops(const DocumentBlocks &blocks)
{
    std::vector<FocusStop> stops;
    QSet<int> scrollers;
    for (int i = 0; i < int(blocks.texts.size()); ++i) {
        const auto &text = blocks.texts[size_t(i)];
        addScrollers(blocks, text, i, scrollers, stops);
        const auto &flow = blocks.flows[size_t(text.flow)];
        const auto &piece = flow.pieces[size_t(text.piece)];
        if (piece.kind == Piece::Kind::ExpandHeader) {
            const int expand = flow.frames[size_t(piece.frame)].index;
            stops.push_back({.kind = FocusStop::Kind::Expand, .text = i, .index = expand});
        }
        addLinks(text, i, stops);
    }
    return stops;
}
