#include "richtext/markdown/RunCollector.h"

#include "richtext/markdown/LinkTarget.h"

#include <QByteArrayView>

#include <utility>

namespace {

/// The type of an extension has no constant.
bool isStrikethrough(cmark_node *node)
{
    return QByteArrayView(cmark_node_get_type_string(node)) == "strikethrough";
}

void removeGuard(QList<Markdown::InlineRun> &runs)
{
    if (!runs.isEmpty() && runs.first().text.startsWith(Markdown::LineGuard::edge))
        runs.first().text.remove(0, 1);
    if (!runs.isEmpty() && runs.last().text.endsWith(Markdown::LineGuard::edge))
        runs.last().text.chop(1);
    runs.removeIf([](const Markdown::InlineRun &run) { return run.text.isEmpty(); });
}

} // namespace

void Markdown::RunCollector::enter(cmark_node *node)
{
    const cmark_node_type type = cmark_node_get_type(node);
    if (type == CMARK_NODE_TEXT || type == CMARK_NODE_CODE || type == CMARK_NODE_HTML_INLINE)
        return add(cmark_node_get_literal(node), type == CMARK_NODE_CODE);
    nest(node, 1);
    if (type == CMARK_NODE_LINK && m_images == 0)
        m_link = LinkTarget::absoluteString(m_guard.decoded(cmark_node_get_url(node)));
}

void Markdown::RunCollector::leave(cmark_node *node)
{
    const cmark_node_type type = cmark_node_get_type(node);
    nest(node, -1);
    if (type == CMARK_NODE_LINK && m_images == 0)
        m_link.clear();
}

void Markdown::RunCollector::nest(cmark_node *node, int by)
{
    const cmark_node_type type = cmark_node_get_type(node);
    m_images += type == CMARK_NODE_IMAGE ? by : 0;
    if (m_images > 0)
        return;
    m_strong += type == CMARK_NODE_STRONG ? by : 0;
    m_emphasized += type == CMARK_NODE_EMPH ? by : 0;
    m_struckThrough += isStrikethrough(node) ? by : 0;
}

void Markdown::RunCollector::add(const char *text, bool isCode)
{
    const InlineStyle style{isCode && m_images == 0, m_strong > 0, m_emphasized > 0,
                            m_struckThrough > 0, m_link};
    if (style != m_style)
        flush();
    m_style = style;
    m_pending += m_guard.decoded(text);
}

void Markdown::RunCollector::flush()
{
    if (!m_pending.isEmpty())
        m_runs.append(InlineRun{std::exchange(m_pending, {}), m_style});
}

QList<Markdown::InlineRun> Markdown::RunCollector::runs() &&
{
    flush();
    removeGuard(m_runs);
    return std::move(m_runs);
}
