#pragma once

#include <QQuickImageProvider>

/// Serves the drawn icons: `image://icon/<kind>?<values>`. The addresses are made by `Pictures`; pictures of one
/// address share one texture.
class IconProvider : public QQuickImageProvider
{
public:
    IconProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
