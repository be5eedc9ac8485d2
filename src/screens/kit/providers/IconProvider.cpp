#include "screens/kit/providers/IconProvider.h"

#include "screens/kit/painters/AvatarPainter.h"
#include "screens/kit/painters/BadgePainter.h"
#include "screens/kit/painters/GlyphPainter.h"
#include "screens/kit/painters/PriorityPainter.h"
#include "screens/kit/painters/SpinnerPainter.h"
#include "screens/kit/painters/StatusPainter.h"
#include "screens/kit/painters/SymbolPainter.h"
#include "screens/kit/painters/TypePainter.h"
#include "screens/kit/providers/Canvas.h"
#include "screens/kit/providers/SymbolProvider.h"

using namespace Qt::StringLiterals;

namespace {

struct Icon
{
    /// The side of the whole picture in logical pixels.
    qreal side = 0;
    std::function<void(QPainter &, qreal)> paint;
};

int enumValue(const PictureAddress &address)
{
    return static_cast<int>(address.number(u"v"_s));
}

Icon statusIcon(const PictureAddress &address, qreal size)
{
    const StatusDrawing status{static_cast<StatusCategory>(enumValue(address)),
                               address.number(u"p"_s), address.color(u"c"_s)};
    return {size, [=](QPainter &painter, qreal) { paintStatusIcon(painter, status, size); }};
}

Icon priorityIcon(const PictureAddress &address, qreal size)
{
    const auto level = static_cast<PriorityLevel>(enumValue(address));
    const auto tint = address.color(u"c"_s);
    return {size, [=](QPainter &painter, qreal) { paintPriorityIcon(painter, level, tint, size); }};
}

Icon typeIcon(const PictureAddress &address, qreal size)
{
    const auto kind = static_cast<Model::IssueTypeKind>(enumValue(address));
    const int border = symbolBorder(symbolSide(size));
    return {size + 2 + 2 * border, [=](QPainter &painter, qreal) {
                painter.translate(border, border);
                paintTypeIcon(painter, kind, size);
            }};
}

Icon projectIcon(const PictureAddress &address, qreal size)
{
    const auto color = address.color(u"c"_s);
    const auto letter = address.text(u"t"_s);
    return {size,
            [=](QPainter &painter, qreal) { paintProjectBadge(painter, color, letter, size); }};
}

Icon avatarIcon(const PictureAddress &address, qreal size)
{
    const auto color = address.color(u"c"_s);
    const auto initials = address.text(u"t"_s);
    return {size, [=](QPainter &painter, qreal) { paintAvatar(painter, color, initials, size); }};
}

Icon nobodyIcon(const PictureAddress &, qreal size)
{
    return {size, [=](QPainter &painter, qreal) { paintNobody(painter, size); }};
}

Icon spinnerIcon(const PictureAddress &address, qreal size)
{
    const auto color = address.color(u"c"_s);
    return {size, [=](QPainter &painter, qreal) { paintSpinner(painter, color, size); }};
}

Icon glyphIcon(const PictureAddress &, qreal size)
{
    const qreal margin = appGlyphMargin(size);
    return {size + 2 * margin, [=](QPainter &painter, qreal scale) {
                painter.translate(margin, margin);
                paintAppGlyph(painter, size, scale);
            }};
}

Icon iconOf(const PictureAddress &address)
{
    static const QHash<QString, Icon (*)(const PictureAddress &, qreal)> makers{
        {u"status"_s, statusIcon},   {u"priority"_s, priorityIcon}, {u"type"_s, typeIcon},
        {u"project"_s, projectIcon}, {u"avatar"_s, avatarIcon},     {u"nobody"_s, nobodyIcon},
        {u"spinner"_s, spinnerIcon}, {u"glyph"_s, glyphIcon},
    };
    const auto make = makers.value(address.path.value(0));
    return make ? make(address, address.number(u"s"_s)) : Icon{};
}

} // namespace

IconProvider::IconProvider() : QQuickImageProvider(Image) {}

QImage IconProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const auto icon = iconOf(parsedAddress(id));
    if (!icon.paint || icon.side <= 0) {
        qWarning("No icon is drawn for %s", qUtf8Printable(id));
        return {};
    }
    return painted(icon.side, requestedSize, size, icon.paint);
}
