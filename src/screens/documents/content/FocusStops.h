#pragma once

#include "screens/documents/content/DocumentBlocks.h"

#include <vector>

/// A part of a document that can have the keyboard focus: a link, the header of an expand, or a block that scrolls
/// sideways.
struct FocusStop
{
    enum class Kind { Link, Expand, Scroller };

    Kind kind = Kind::Link;
    /// The text of a link or a header, or the first text of a scroller.
    int text = 0;
    /// The offsets of a link in its text.
    int start = 0;
    int end = 0;
    /// The number of the expand or the scroller.
    int index = -1;
    /// The address of a link, and the text that has it.
    QString link;
    QString label;

    bool operator==(const FocusStop &) const = default;
};

/// All stops in the order of the document. Adjacent runs with the same address are one link.
std::vector<FocusStop> focusStops(const DocumentBlocks &blocks);
