#include "screens/issues/list/RowNode.h"

#include "screens/issues/face/IssueIcons.h"
#include "screens/kit/drawn/NinePatchNode.h"

#include <QQuickWindow>

RowNode::RowNode(QQuickItem &item) : m_face(std::make_unique<FaceNode>(item).release())
{
    appendChildNode(m_face);
}

void RowNode::showFill(QQuickWindow *window, QSizeF size, const QColor &fill)
{
    if (fill.alpha() == 0) {
        if (m_fill)
            removeChildNode(m_fill);
        const std::unique_ptr<NinePatchNode> dropped(std::exchange(m_fill, nullptr));
        return;
    }
    if (!m_fill) {
        m_fill = std::make_unique<NinePatchNode>().release();
        insertChildNodeBefore(m_fill, m_face);
    }
    const qreal scale = window->effectiveDevicePixelRatio();
    const PlacedPicture corners = IssueIcons::rowFill(fill);
    const QRectF box(0, Metrics::rowFillInset, size.width(),
                     size.height() - 2 * Metrics::rowFillInset);
    m_fill->show(window, pictureTexture(window, corners.key, scale, corners.paint), scale, box,
                 fill);
}

void RowNode::showFace(QQuickWindow *window, const std::vector<PlacedPicture> &pictures,
                       const CaptionLayouts &captions)
{
    m_face->show(window, pictures, captions);
}
