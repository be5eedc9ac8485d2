#pragma once

#include <QString>

namespace Markdown {

/// How a run of text is set.
struct InlineStyle
{
    bool code = false;
    bool strong = false;
    bool emphasized = false;
    bool struckThrough = false;
    /// The target of the link that the run is in; empty outside of links.
    QString link;

    bool operator==(const InlineStyle &) const = default;
};

/// A piece of a line that is set in one way.
struct InlineRun
{
    QString text;
    InlineStyle style;

    bool operator==(const InlineRun &) const = default;
};

} // namespace Markdown
