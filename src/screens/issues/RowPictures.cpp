#include "screens/issues/RowPictures.h"

#include "screens/issues/RowFit.h"
#include "screens/kit/images/PictureProvider.h"
#include "screens/kit/painters/AvatarPainter.h"
#include "screens/kit/painters/PriorityPainter.h"
#include "screens/kit/painters/StatusPainter.h"
#include "screens/kit/painters/SymbolPainter.h"
#include "screens/kit/painters/TypePainter.h"
#include "screens/kit/providers/SymbolProvider.h"
#include "screens/theme/IdentityColors.h"

#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

enum Kind { Priority, Status, Type, Chip, Dot, Due, Nobody, Initials, Person };

constexpr double cellSide = 22;
constexpr double iconSide = 14;
constexpr double typeFont = 11;
constexpr double dotSide = 7;
constexpr double dotStep = 10;
constexpr double chipHeight = 19;
constexpr double chipGap = 4;
constexpr double chipPadding = 7;
constexpr double calendarFont = 10;
constexpr double avatarSide = 18;

/// Where something stands that is centred in a height, on a whole pixel as Qt Quick places it.
double centred(double room, double height)
{
    const auto half = [](double length) { return std::ceil(std::floor(length) / 2); };
    return half(room) - half(height);
}

PlacedPicture priorityPicture(const RowPicturesInput &row)
{
    const auto level = row.issue.priorityLevel();
    const QColor tint = level == PriorityLevel::None ? row.style.faint : row.style.ink;
    const PictureKey key{
        .kind = Priority, .value = double(level), .color = tint, .size = {iconSide, iconSide}};
    return {key,
            [=](QPainter &painter) { paintPriorityIcon(painter, level, tint, iconSide); },
            {row.plan.priority + (cellSide - iconSide) / 2, centred(row.height, iconSide)}};
}

PlacedPicture statusPicture(const RowPicturesInput &row)
{
    const StatusDrawing status{row.issue.status.category(), row.issue.status.progress(),
                               row.style.done};
    const PictureKey key{.kind = Status,
                         .value = double(status.category),
                         .detail = status.progress,
                         .color = status.accent,
                         .size = {iconSide, iconSide}};
    return {key,
            [=](QPainter &painter) { paintStatusIcon(painter, status, iconSide); },
            {row.plan.status + (cellSide - iconSide) / 2, centred(row.height, iconSide)}};
}

PlacedPicture typePicture(const RowPicturesInput &row)
{
    const auto kind = row.issue.type->kind();
    const int border = symbolBorder(symbolSide(typeFont));
    const double side = typeFont + 2 + 2 * border;
    const PictureKey key{.kind = Type, .value = double(kind), .size = {side, side}};
    const auto paint = [=](QPainter &painter) {
        painter.translate(border, border);
        paintTypeIcon(painter, kind, typeFont);
    };
    return {key, paint, {row.plan.type - border, centred(row.height, side)}};
}

void strokeCapsule(QPainter &painter, double width, const QColor &color)
{
    painter.setPen(QPen(color, 1));
    painter.setBrush(Qt::NoBrush);
    const QRectF box(0.5, 0.5, width - 1, chipHeight - 1);
    painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);
}

void fillDot(QPainter &painter, QPointF corner, const QColor &color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(corner, QSizeF(dotSide, dotSide)));
}

PlacedPicture chipPicture(const RowPicturesInput &row, const QString &label, double x)
{
    const double width = RowFitting::labelsWidth({label});
    const QColor dot = IdentityColors::label(label);
    const QColor outline = row.style.outline;
    const PictureKey key{.kind = Chip,
                         .value = width,
                         .color = dot,
                         .secondColor = outline,
                         .size = {width, chipHeight}};
    const auto paint = [=](QPainter &painter) {
        strokeCapsule(painter, width, outline);
        fillDot(painter, {chipPadding, (chipHeight - dotSide) / 2}, dot);
    };
    return {key, paint, {x, centred(row.height, chipHeight)}};
}

PlacedPicture dotPicture(const RowPicturesInput &row, const QString &label, double x)
{
    const QColor color = IdentityColors::label(label);
    const PictureKey key{.kind = Dot, .color = color, .size = {dotSide, dotSide}};
    return {key,
            [=](QPainter &painter) { fillDot(painter, {}, color); },
            {x, centred(row.height, dotSide)}};
}

void addLabels(std::vector<PlacedPicture> &pictures, const RowPicturesInput &row)
{
    const auto &labels = row.issue.labels;
    double x = row.plan.labels;
    for (const auto &label :
         labels.first(std::min(qsizetype(row.plan.showsLabelNames ? 2 : 4), labels.size()))) {
        pictures.push_back(row.plan.showsLabelNames ? chipPicture(row, label, x)
                                                    : dotPicture(row, label, x));
        x += row.plan.showsLabelNames ? pictures.back().key.size.width() + chipGap : dotStep;
    }
}

PlacedPicture duePicture(const RowPicturesInput &row)
{
    const QColor ink = row.isOverdue ? row.style.late : row.style.quiet;
    const QColor outline = row.isOverdue ? row.style.lateOutline : row.style.outline;
    const double width = row.plan.dueWidth;
    const PictureKey key{.kind = Due,
                         .value = width,
                         .color = ink,
                         .secondColor = outline,
                         .size = {width, chipHeight}};
    const auto paint = [=](QPainter &painter) {
        strokeCapsule(painter, width, outline);
        const double side = symbolSide(calendarFont);
        paintSymbol(painter, {u"calendar"_s, ink},
                    {chipPadding, centred(chipHeight, side), side, side});
    };
    return {key, paint, {row.plan.due, centred(row.height, chipHeight)}};
}

PlacedPicture initialsPicture(const JiraUser &user)
{
    const QColor color = IdentityColors::person(user.id);
    const QString initials = user.initials();
    return {{.kind = Initials, .text = initials, .color = color, .size = {avatarSide, avatarSide}},
            [=](QPainter &painter) { paintAvatar(painter, color, initials, avatarSide); }};
}

PlacedPicture personPicture(const JiraUser &user, const QImage &image)
{
    const auto paint = [image](QPainter &painter) {
        const int pixels = painter.device()->width();
        painter.drawImage(QRectF(0, 0, avatarSide, avatarSide), roundPicture(image, pixels));
    };
    return {{.kind = Person,
             .value = double(image.cacheKey()),
             .text = user.id,
             .size = {avatarSide, avatarSide}},
            paint};
}

PlacedPicture nobodyPicture()
{
    return {{.kind = Nobody, .size = {avatarSide, avatarSide}},
            [](QPainter &painter) { paintNobody(painter, avatarSide); }};
}

PlacedPicture assigneePicture(const RowPicturesInput &row)
{
    const auto &user = row.issue.assignee;
    auto picture = !user                 ? nobodyPicture()
                   : row.person.isNull() ? initialsPicture(*user)
                                         : personPicture(*user, row.person);
    picture.place = {row.plan.assignee + (cellSide - avatarSide) / 2,
                     centred(row.height, avatarSide)};
    return picture;
}

} // namespace

std::vector<PlacedPicture> rowPictures(const RowPicturesInput &row)
{
    std::vector<PlacedPicture> pictures;
    if (row.plan.priority != RowPlan::absent)
        pictures.push_back(priorityPicture(row));
    pictures.push_back(statusPicture(row));
    if (row.plan.type != RowPlan::absent && row.issue.type)
        pictures.push_back(typePicture(row));
    if (row.plan.labels != RowPlan::absent)
        addLabels(pictures, row);
    if (row.plan.due != RowPlan::absent)
        pictures.push_back(duePicture(row));
    if (row.plan.assignee != RowPlan::absent)
        pictures.push_back(assigneePicture(row));
    return pictures;
}
