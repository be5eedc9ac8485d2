#pragma once

#include "screens/attachments/preview/PdfPreview.h"

#include <QImage>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// One page of a PDF. It is drawn in another process, at the resolution of the screen; until then the page is blank. A
/// page that cannot be drawn, or not within the time for it, is not tried again.
class PdfPage : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        PdfPreview *preview READ preview WRITE setPreview NOTIFY previewChanged FINAL REQUIRED)
    Q_PROPERTY(int page READ page WRITE setPage NOTIFY pageChanged FINAL REQUIRED)
    Q_PROPERTY(bool isDrawn READ isDrawn NOTIFY drawnChanged FINAL)
    Q_PROPERTY(bool hasFailed READ hasFailed NOTIFY drawnChanged FINAL)

public:
    explicit PdfPage(QQuickItem *parent = nullptr);

    PdfPreview *preview() const { return m_preview; }
    void setPreview(PdfPreview *preview);
    int page() const { return m_page; }
    void setPage(int page);
    bool isDrawn() const { return !m_image.isNull(); }
    bool hasFailed() const { return m_hasFailed; }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void previewChanged();
    void pageChanged();
    void drawnChanged();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;

private:
    QSize wantedPixels() const;
    void take(quint64 order, const QImage &image);

    QPointer<PdfPreview> m_preview;
    int m_page = 0;
    QImage m_image;
    bool m_hasFailed = false;
    QSize m_ordered;
    quint64 m_order = 0;
};
