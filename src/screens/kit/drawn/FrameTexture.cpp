#include "screens/kit/drawn/FrameTexture.h"

#include <QHash>
#include <QQuickWindow>
#include <QSGTexture>

namespace {

using Textures = QHash<QString, std::weak_ptr<QSGTexture>>;

QString keyOf(const QQuickWindow *window, const FrameDrawing &frame, qreal scale)
{
    QString key;
    QDebug text(&key);
    text << static_cast<const void *>(window) << scale << frame.size << frame.radius
         << frame.hairline.rgba() << frame.edgeLight.rgba();
    for (const auto &shadow : frame.shadows)
        text << shadow.offset << shadow.blur << shadow.color.rgba();
    return key;
}

void forgetDead(Textures &textures)
{
    textures.removeIf([](const Textures::iterator &entry) { return entry->expired(); });
}

} // namespace

std::shared_ptr<QSGTexture> frameTexture(QQuickWindow *window, const FrameDrawing &frame,
                                         qreal scale)
{
    // Nodes are updated while the GUI thread is blocked, so only one window uses the map at a time.
    static Textures textures;
    const auto key = keyOf(window, frame, scale);
    if (auto known = textures.value(key).lock())
        return known;
    forgetDead(textures);
    std::shared_ptr<QSGTexture> made(window->createTextureFromImage(
        frameImage(frame, scale), QQuickWindow::TextureHasAlphaChannel));
    textures.insert(key, made);
    return made;
}
