#pragma once

#include <QImage>
#include <QQuickImageProvider>
#include <QUrl>

enum class PictureShape { Plain, Round };

/// The address under which an Image finds a picture of the loader.
QUrl pictureAddress(const QUrl &url, PictureShape shape);
/// The picture scaled and cropped to a square around its centre, and masked to a disc.
QImage roundPicture(const QImage &picture, int side);

/// Serves the pictures of the loader: `image://picture/<plain or round>?u=<address>`. All items that show a picture at
/// the same size share one texture. A plain picture keeps its proportions within the requested size.
class PictureProvider : public QQuickImageProvider
{
public:
    PictureProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
