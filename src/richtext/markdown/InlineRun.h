#pragma once

#include <QString>

namespace Markdown {

/// The style of a run of text.
struct InlineStyle
{
    bool code = false;
    bool strong = false;
    bool emphasized = false;
    bool struckThrough = false;
    /// The target of the link that contains the run; empty outside links.
    QString link;

    bool operator==(const InlineStyle &) const = default;
};

/// A part of a line with a uniform style.
struct InlineRun
{
    QString text;
    InlineStyle style;

    bool operator==(const InlineRun &) const = default;
};

} // namespace Markdown
