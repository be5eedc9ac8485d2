#include "screens/documents/layout/SymbolImages.h"

#include "screens/kit/painters/SymbolPainter.h"

#include <QHash>
#include <QPainter>

#include <cmath>

namespace {

struct SymbolKey
{
    QString name;
    QRgb color = 0;
    int pixels = 0;

    bool operator==(const SymbolKey &) const = default;
};

size_t qHash(const SymbolKey &key, size_t seed = 0)
{
    return qHashMulti(seed, key.name, key.color, key.pixels);
}

QImage drawn(const QString &name, const QColor &color, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const auto weight = name.startsWith(u"chevron") ? SymbolWeight::Bold : SymbolWeight::Regular;
    paintSymbol(painter, {name, color, weight}, QRectF(0, 0, pixels, pixels));
    return image;
}

} // namespace

const QImage &symbolImage(const QString &name, const QColor &color, double side, double scale)
{
    // A few symbols in the colours of each appearance that was shown.
    static QHash<SymbolKey, QImage> images;
    const SymbolKey key{name, color.rgba(), int(std::lround(side * scale))};
    const auto known = images.constFind(key);
    if (known != images.cend())
        return *known;
    return *images.insert(key, drawn(name, color, key.pixels));
}
