#include "screens/issues/face/IssueIcons.h"

#include "screens/kit/drawn/ChipPictures.h"
#include "screens/kit/images/PictureProvider.h"
#include "screens/kit/painters/AvatarPainter.h"
#include "screens/kit/painters/ChipPainter.h"
#include "screens/kit/painters/PriorityPainter.h"
#include "screens/kit/painters/StatusPainter.h"
#include "screens/kit/painters/SymbolPainter.h"
#include "screens/kit/painters/TypePainter.h"
#include "screens/kit/providers/SymbolProvider.h"
#include "screens/theme/IdentityColors.h"

#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace IssueIcons {

namespace {

enum Kind {
    Priority,
    Status,
    Type,
    Dot,
    Nobody,
    Initials,
    Person,
    CellFill,
    CellEdge,
    Chevron,
    RowFill,
    FocusBar
};

constexpr double typeFont = 11;
/// The radii of a cell's fill and of the outline of a card's cell.
constexpr double fillRadius = Metrics::radiusSquare;
constexpr double edgeRadius = Metrics::radiusKeyCap;

void strokeRounded(QPainter &painter, QSizeF size, double radius, const QColor &color)
{
    painter.setPen(QPen(color, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(QPointF(), size).adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5,
                            radius - 0.5);
}

PlacedPicture filled(Kind kind, QSizeF size, double radius, const QColor &color)
{
    const auto paint = [=](QPainter &painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(QRectF(QPointF(), size), radius, radius);
    };
    return {{.kind = kind, .color = color, .size = size}, paint, {}};
}

PlacedPicture initials(const JiraUser &user)
{
    const QColor color = IdentityColors::person(user.id);
    const QString initials = user.initials();
    return {{.kind = Initials, .text = initials, .color = color, .size = {avatarSide, avatarSide}},
            [=](QPainter &painter) { paintAvatar(painter, color, initials, avatarSide); },
            {}};
}

PlacedPicture person(const JiraUser &user, const QImage &face)
{
    const auto paint = [face](QPainter &painter) {
        const int pixels = painter.device()->width();
        painter.drawImage(QRectF(0, 0, avatarSide, avatarSide), roundPicture(face, pixels));
    };
    return {{.kind = Person,
             .value = double(face.cacheKey()),
             .text = user.id,
             .size = {avatarSide, avatarSide}},
            paint,
            {}};
}

PlacedPicture nobody()
{
    return {{.kind = Nobody, .size = {avatarSide, avatarSide}},
            [](QPainter &painter) { paintNobody(painter, avatarSide); },
            {}};
}

} // namespace

double centred(double room, double length)
{
    const auto half = [](double whole) { return std::ceil(std::floor(whole) / 2); };
    return half(room) - half(length);
}

PlacedPicture priority(PriorityLevel level, const IssueStyle &style, double side)
{
    const QColor tint = level == PriorityLevel::None ? style.faint : style.ink;
    const PictureKey key{
        .kind = Priority, .value = double(level), .color = tint, .size = {side, side}};
    return {key, [=](QPainter &painter) { paintPriorityIcon(painter, level, tint, side); }, {}};
}

PlacedPicture status(const IssueStatus &status, const IssueStyle &style, double side)
{
    const StatusDrawing drawing{status.category(), status.progress(), style.done};
    const PictureKey key{.kind = Status,
                         .value = double(drawing.category),
                         .detail = drawing.progress,
                         .color = drawing.accent,
                         .size = {side, side}};
    return {key, [=](QPainter &painter) { paintStatusIcon(painter, drawing, side); }, {}};
}

double typeBorder()
{
    return symbolBorder(symbolSide(typeFont));
}

PlacedPicture type(const IssueType &type)
{
    const auto kind = type.kind();
    const double border = typeBorder();
    const double side = typeSide + 2 * border;
    const auto paint = [=](QPainter &painter) {
        painter.translate(border, border);
        paintTypeIcon(painter, kind, typeFont);
    };
    return {{.kind = Type, .value = double(kind), .size = {side, side}}, paint, {}};
}

double chevronBorder(double fontSize)
{
    return symbolBorder(symbolSide(fontSize));
}

PlacedPicture chevron(double fontSize, const QColor &color)
{
    const double side = symbolSide(fontSize);
    const double border = chevronBorder(fontSize);
    const double whole = side + 2 * border;
    const auto paint = [=](QPainter &painter) {
        paintSymbol(painter, {u"chevron.right"_s, color, SymbolWeight::Bold},
                    {border, border, side, side});
    };
    return {{.kind = Chevron, .color = color, .size = {whole, whole}}, paint, {}};
}

PlacedPicture chip(const QString &label, double width, const IssueStyle &style)
{
    return labelChipPicture({width, chipHeight}, style.outline, IdentityColors::label(label));
}

PlacedPicture dot(const QString &label)
{
    const QColor color = IdentityColors::label(label);
    return {{.kind = Dot, .color = color, .size = {dotSide, dotSide}},
            [=](QPainter &painter) { paintLabelDot(painter, {}, color); },
            {}};
}

PlacedPicture due(double width, bool isOverdue, const IssueStyle &style)
{
    return dueBadgePicture({width, chipHeight}, isOverdue ? style.lateOutline : style.outline,
                           isOverdue ? style.late : style.quiet);
}

PlacedPicture assignee(const std::optional<JiraUser> &user, const QImage &face)
{
    if (!user)
        return nobody();
    return face.isNull() ? initials(*user) : person(*user, face);
}

PlacedPicture rowFill(const QColor &color)
{
    constexpr double side = 2 * Metrics::radiusRow + 1;
    return filled(RowFill, {side, side}, Metrics::radiusRow, color);
}

PlacedPicture focusBar(double height, const QColor &color)
{
    return filled(FocusBar, {Metrics::focusBarWidth, height}, Metrics::focusBarWidth / 2.0, color);
}

PlacedPicture cellFill(QSizeF size, const QColor &color)
{
    return filled(CellFill, size, fillRadius, color);
}

PlacedPicture cellEdge(QSizeF size, const QColor &color)
{
    return {{.kind = CellEdge, .color = color, .size = size},
            [=](QPainter &painter) { strokeRounded(painter, size, edgeRadius, color); },
            {}};
}

} // namespace IssueIcons
