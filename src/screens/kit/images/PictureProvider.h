#pragma once

#include <QImage>
#include <QQuickImageProvider>
#include <QUrl>

enum class PictureShape { Plain, Round };

/// The address under which an Image finds a picture that the loader has.
QUrl pictureAddress(const QUrl &url, PictureShape shape);
/// A picture scaled to fill a square, cut at its middle, and its corners rounded to a disc.
QImage roundPicture(const QImage &picture, int side);

/// Serves the loader's pictures: `image://picture/<plain or round>?u=<address>`. All that show one picture at one size
/// share one texture. A plain picture keeps its proportions within the size asked for.
class PictureProvider : public QQuickImageProvider
{
public:
    PictureProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
