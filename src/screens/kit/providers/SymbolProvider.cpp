#include "screens/kit/providers/SymbolProvider.h"

#include "screens/kit/painters/SymbolPainter.h"
#include "screens/kit/providers/Canvas.h"

#include <QUrlQuery>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

SymbolWeight weightOf(const QString &name)
{
    static const QStringList names{u"regular"_s, u"medium"_s, u"semibold"_s, u"bold"_s, u"heavy"_s};
    return static_cast<SymbolWeight>(std::max(qsizetype(0), names.indexOf(name)));
}

} // namespace

int symbolBorder(int side)
{
    return std::max(1, static_cast<int>(std::ceil(side * 0.1)));
}

SymbolProvider::SymbolProvider() : QQuickImageProvider(Image) {}

QImage SymbolProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const auto address = parsedAddress(id);
    const int side = symbolSide(address.number(u"f"_s));
    const int border = symbolBorder(side);
    const SymbolDrawing symbol{address.path.join(u'/'), address.color(u"c"_s),
                               weightOf(address.text(u"w"_s))};
    if (!symbolNames().contains(symbol.name))
        qWarning("No symbol is called %s", qUtf8Printable(symbol.name));
    return painted(side + 2 * border, requestedSize, size, [&](QPainter &painter, qreal) {
        paintSymbol(painter, symbol, QRectF(border, border, side, side));
    });
}
