#include "screens/issues/face/CaptionLayouts.h"

#include "screens/issues/face/TextMeasure.h"
#include "screens/issues/face/TextNode.h"

namespace {

bool haveEqualLayouts(const Caption &a, const Caption &b)
{
    return a.text == b.text && a.width == b.width && a.font == b.font;
}

} // namespace

void CaptionLayouts::set(const QList<Caption> &captions)
{
    if (m_captions == captions)
        return;
    m_layouts.resize(size_t(captions.size()));
    for (qsizetype i = 0; i < captions.size(); ++i) {
        const Caption &caption = captions[i];
        if (i >= m_captions.size() || !haveEqualLayouts(m_captions[i], caption))
            m_layouts[size_t(i)] = TextMeasure::line(caption.text, caption.font, caption.width);
    }
    m_captions = captions;
    ++m_version;
}

void CaptionLayouts::addTo(QSGNode &node) const
{
    for (qsizetype i = 0; i < m_captions.size(); ++i) {
        const Caption &caption = m_captions[i];
        TextNode::add(node, caption.place + QPointF(0, caption.leading), *m_layouts[size_t(i)],
                      caption.color);
    }
}
