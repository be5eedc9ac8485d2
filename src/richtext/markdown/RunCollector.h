#pragma once

#include "richtext/markdown/InlineRun.h"

#include <QByteArray>
#include <QList>

#include <md4c.h>

namespace Markdown {

/// Collects the parser's events for one encoded line into runs.
class RunCollector
{
public:
    void enter(MD_SPANTYPE type, const void *detail);
    void leave(MD_SPANTYPE type);
    void add(MD_TEXTTYPE type, QByteArrayView text);

    /// The runs of the whole line, decoded. Call this once, at the end.
    QList<InlineRun> runs() &&;

private:
    void flush();

    /// The number of open spans of each kind; emphasis can be nested in emphasis.
    int m_code = 0;
    int m_strong = 0;
    int m_emphasized = 0;
    int m_struckThrough = 0;
    /// The number of open images. Spans inside the description of an image are ignored.
    int m_images = 0;
    /// The target of the open link; links cannot be nested.
    QString m_link;

    InlineStyle m_style;
    QByteArray m_pending;
    QList<InlineRun> m_runs;
};

} // namespace Markdown
