#include "richtext/markdown/RunCollector.h"

#include "richtext/markdown/Entities.h"
#include "richtext/markdown/LineGuard.h"
#include "richtext/markdown/LinkTarget.h"

namespace {

QByteArray meaning(MD_TEXTTYPE type, QByteArrayView text)
{
    return type == MD_TEXT_ENTITY ? LineGuard::dressed(Entities::decoded(text.toByteArray()))
                                  : text.toByteArray();
}

QByteArray meaning(const MD_ATTRIBUTE &attribute)
{
    QByteArray result;
    for (int i = 0; attribute.substr_offsets[i] < attribute.size; ++i) {
        const MD_OFFSET start = attribute.substr_offsets[i];
        const MD_OFFSET end = attribute.substr_offsets[i + 1];
        result += meaning(attribute.substr_types[i],
                          QByteArrayView(attribute.text + start, qsizetype(end - start)));
    }
    return result;
}

QString target(const void *detail)
{
    const QByteArray href = meaning(static_cast<const MD_SPAN_A_DETAIL *>(detail)->href);
    return LinkTarget::absoluteString(LineGuard::undressed(href).toUtf8());
}

void removeGuard(QList<Markdown::InlineRun> &runs)
{
    if (!runs.isEmpty() && runs.first().text.startsWith(LineGuard::edge))
        runs.first().text.remove(0, 1);
    if (!runs.isEmpty() && runs.last().text.endsWith(LineGuard::edge))
        runs.last().text.chop(1);
    runs.removeIf([](const Markdown::InlineRun &run) { return run.text.isEmpty(); });
}

} // namespace

void Markdown::RunCollector::enter(MD_SPANTYPE type, const void *detail)
{
    m_images += type == MD_SPAN_IMG ? 1 : 0;
    if (m_images > 0)
        return;
    m_code += type == MD_SPAN_CODE ? 1 : 0;
    m_strong += type == MD_SPAN_STRONG ? 1 : 0;
    m_emphasized += type == MD_SPAN_EM ? 1 : 0;
    m_struckThrough += type == MD_SPAN_DEL ? 1 : 0;
    if (type == MD_SPAN_A)
        m_link = target(detail);
}

void Markdown::RunCollector::leave(MD_SPANTYPE type)
{
    if (m_images > 0) {
        m_images -= type == MD_SPAN_IMG ? 1 : 0;
        return;
    }
    m_code -= type == MD_SPAN_CODE ? 1 : 0;
    m_strong -= type == MD_SPAN_STRONG ? 1 : 0;
    m_emphasized -= type == MD_SPAN_EM ? 1 : 0;
    m_struckThrough -= type == MD_SPAN_DEL ? 1 : 0;
    if (type == MD_SPAN_A)
        m_link.clear();
}

void Markdown::RunCollector::add(MD_TEXTTYPE type, QByteArrayView text)
{
    const InlineStyle style{m_code > 0, m_strong > 0, m_emphasized > 0, m_struckThrough > 0,
                            m_link};
    if (style != m_style)
        flush();
    m_style = style;
    m_pending += meaning(type, text);
}

void Markdown::RunCollector::flush()
{
    if (!m_pending.isEmpty())
        m_runs.append(InlineRun{LineGuard::undressed(m_pending), m_style});
    m_pending.clear();
}

QList<Markdown::InlineRun> Markdown::RunCollector::runs() &&
{
    flush();
    removeGuard(m_runs);
    return std::move(m_runs);
}
