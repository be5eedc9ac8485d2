#include "screens/issues/face/FaceNode.h"

#include "screens/issues/face/CaptionLayouts.h"
#include "screens/issues/face/TextNode.h"

#include <QQuickWindow>

FaceNode::FaceNode(QQuickItem &item)
    : m_pictures(std::make_unique<PictureNode>().release()), m_texts(TextNode::make(item).release())
{
    appendChildNode(m_pictures);
    appendChildNode(m_texts);
}

void FaceNode::show(QQuickWindow *window, const std::vector<PlacedPicture> &pictures,
                    const CaptionLayouts &captions)
{
    m_pictures->show(window, pictures);
    const std::pair now(captions.version(), window->effectiveDevicePixelRatio());
    if (std::exchange(m_shown, now) == now)
        return;
    TextNode::clear(*m_texts);
    captions.addTo(*m_texts);
}
