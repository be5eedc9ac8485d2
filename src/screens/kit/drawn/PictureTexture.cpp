#include "screens/kit/drawn/PictureTexture.h"

#include <QHash>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGTexture>

#include <cmath>

namespace {

struct Place
{
    const QQuickWindow *window = nullptr;
    qreal scale = 1;
    PictureKey picture;

    bool operator==(const Place &) const = default;
};

size_t qHash(const Place &place, size_t seed = 0)
{
    const auto &picture = place.picture;
    return qHashMulti(seed, place.window, place.scale, picture.kind, picture.value, picture.detail,
                      picture.text, picture.color.rgba(), picture.secondColor.rgba(),
                      picture.size.width(), picture.size.height());
}

using Textures = QHash<Place, std::weak_ptr<QSGTexture>>;

QImage imageOf(QSizeF size, qreal scale, const PicturePainter &paint)
{
    // As in an Image: the size is rounded up to whole logical pixels, and then to whole device pixels.
    const QSize pixels(int(std::ceil(std::ceil(size.width()) * scale)),
                       int(std::ceil(std::ceil(size.height()) * scale)));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels.width() / size.width(), pixels.height() / size.height());
    paint(painter);
    return image;
}

} // namespace

std::shared_ptr<QSGTexture> pictureTexture(QQuickWindow *window, const PictureKey &key, qreal scale,
                                           const PicturePainter &paint)
{
    // Nodes are updated while the GUI thread is blocked, so only one window uses the map at a time.
    static Textures textures;
    const Place place{window, scale, key};
    if (auto known = textures.value(place).lock())
        return known;
    textures.removeIf([](const Textures::iterator &entry) { return entry->expired(); });
    constexpr auto options =
        QQuickWindow::CreateTextureOptions(QQuickWindow::TextureHasAlphaChannel) |
        QQuickWindow::TextureCanUseAtlas;
    std::shared_ptr<QSGTexture> made(
        window->createTextureFromImage(imageOf(key.size, scale, paint), options));
    textures.insert(place, made);
    return made;
}
