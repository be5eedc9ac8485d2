#include "screens/attachments/preview/PdfPage.h"

#include <QPainter>
#include <QQuickWindow>

#include <algorithm>

namespace {

/// The maximum length of a side of a drawn page, and the maximum number of its pixels, which need 64 MB.
constexpr int MaximumSide = 8192;
constexpr double MaximumPagePixels = 16.0 * 1024 * 1024;

} // namespace

PdfPage::PdfPage(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setFillColor(Qt::white);
    setOpaquePainting(true);
}

void PdfPage::setPreview(PdfPreview *preview)
{
    if (m_preview == preview)
        return;
    m_preview = preview;
    if (m_preview && m_preview->work())
        connect(m_preview->work(), &PdfWork::drawn, this, &PdfPage::take);
    Q_EMIT previewChanged();
    polish();
}

void PdfPage::setPage(int page)
{
    if (m_page == page)
        return;
    m_page = page;
    m_ordered = {};
    m_image = {};
    m_hasFailed = false;
    Q_EMIT pageChanged();
    Q_EMIT drawnChanged();
    polish();
    update();
}

void PdfPage::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    polish();
}

void PdfPage::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        polish();
}

QSize PdfPage::wantedPixels() const
{
    if (!window() || width() < 1 || height() < 1)
        return {};
    QSizeF pixels = size() * window()->effectiveDevicePixelRatio();
    const double excess = std::max({1.0, pixels.width() * pixels.height() / MaximumPagePixels,
                                    pixels.width() / MaximumSide, pixels.height() / MaximumSide});
    return (pixels / excess).toSize().expandedTo({1, 1});
}

void PdfPage::updatePolish()
{
    const QSize wanted = wantedPixels();
    PdfWork *const work = m_preview ? m_preview->work() : nullptr;
    if (!work || m_hasFailed || wanted.isEmpty() || wanted == m_ordered ||
        m_page >= work->pages().size())
        return;
    m_ordered = wanted;
    m_order = work->draw(m_page, wanted);
}

void PdfPage::take(quint64 order, const QImage &image)
{
    if (order != m_order)
        return;
    m_hasFailed = image.isNull();
    // A page that was drawn at another size remains.
    if (!m_hasFailed)
        m_image = image;
    Q_EMIT drawnChanged();
    update();
}

void PdfPage::paint(QPainter *painter)
{
    painter->fillRect(boundingRect(), Qt::white);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    // Pages are transparent where nothing is drawn.
    if (!m_image.isNull())
        painter->drawImage(boundingRect(), m_image);
}
