#pragma once

#include "richtext/markdown/InlineRun.h"
#include "richtext/markdown/LineGuard.h"

#include <QList>

#include <cmark-gfm.h>

namespace Markdown {

/// Collects the nodes of one parsed line into runs. Each node is entered, and left after its children; a node without
/// children is only entered.
class RunCollector
{
public:
    /// The guard decodes the texts. It must outlive the collector.
    explicit RunCollector(const LineGuard &guard) : m_guard(guard) {}

    void enter(cmark_node *node);
    void leave(cmark_node *node);

    /// The runs of the whole line, decoded. Call this once, at the end.
    QList<InlineRun> runs() &&;

private:
    void nest(cmark_node *node, int by);
    void add(const char *text, bool isCode);
    void flush();

    const LineGuard &m_guard;
    /// The number of open nodes of each kind; emphasis can be nested in emphasis.
    int m_strong = 0;
    int m_emphasized = 0;
    int m_struckThrough = 0;
    /// The number of open images. Styles inside the description of an image are ignored.
    int m_images = 0;
    /// The target of the open link; links cannot be nested.
    QString m_link;

    InlineStyle m_style;
    QString m_pending;
    QList<InlineRun> m_runs;
};

} // namespace Markdown
