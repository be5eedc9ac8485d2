#pragma once

#include "richtext/markdown/InlineRun.h"

#include <QByteArray>
#include <QList>

#include <md4c.h>

namespace Markdown {

/// Turns the parser's events of one guarded line into runs.
class RunCollector
{
public:
    void enter(MD_SPANTYPE type, const void *detail);
    void leave(MD_SPANTYPE type);
    void add(MD_TEXTTYPE type, QByteArrayView text);

    /// The runs of the whole line, without the guard. Call once, at the end.
    QList<InlineRun> runs() &&;

private:
    void flush();

    /// How many spans of each kind are open: emphasis nests in itself.
    int m_code = 0;
    int m_strong = 0;
    int m_emphasized = 0;
    int m_struckThrough = 0;
    /// An image's description is plain: spans inside it don't count.
    int m_images = 0;
    /// Links don't nest in each other.
    QString m_link;

    InlineStyle m_style;
    QByteArray m_pending;
    QList<InlineRun> m_runs;
};

} // namespace Markdown
