#pragma once

#include <QQuickImageProvider>

/// Serves the drawn icons: `image://icon/<kind>?<values>`. `IconAddresses` creates the addresses. Pictures with the same
/// address share one texture.
class IconProvider : public QQuickImageProvider
{
public:
    IconProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
