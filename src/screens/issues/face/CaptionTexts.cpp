#include "screens/issues/face/CaptionTexts.h"

namespace {

void write(QQuickItem &text, const Caption &caption)
{
    text.setPosition(caption.place);
    text.setProperty("font", caption.font);
    text.setProperty("leading", caption.leading);
    text.setProperty("color", caption.color);
    text.setProperty("text", caption.text);
    if (caption.width == Caption::anyWidth)
        text.resetWidth();
    else
        text.setWidth(caption.width);
    text.setVisible(true);
}

} // namespace

void CaptionTexts::show(const QList<Caption> &captions, QQmlComponent *component,
                        QQuickItem &parent)
{
    if (m_shown == captions || !component)
        return;
    for (qsizetype i = 0; i < captions.size(); ++i) {
        auto *text = textAt(i, *component, parent);
        if (text && (i >= m_shown.size() || m_shown[i] != captions[i]))
            write(*text, captions[i]);
    }
    for (qsizetype i = captions.size(); i < m_texts.size(); ++i)
        m_texts[i]->setVisible(false);
    m_shown = captions;
}

QQuickItem *CaptionTexts::textAt(qsizetype index, QQmlComponent &component, QQuickItem &parent)
{
    if (index < m_texts.size())
        return m_texts[index];
    auto *made = component.beginCreate(component.creationContext());
    auto *text = qobject_cast<QQuickItem *>(made);
    if (!text)
        return nullptr;
    text->setParent(&parent);
    text->setParentItem(&parent);
    m_texts += text;
    component.completeCreate();
    return text;
}
