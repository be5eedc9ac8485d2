#pragma once

#include "model/Issue.h"
#include "screens/issues/face/IssueStyle.h"
#include "screens/kit/drawn/PictureNode.h"
#include "screens/theme/Metrics.h"

#include <QImage>
#include <QPointF>

/// The pictures of rows and cards, without positions. Sizes are in logical pixels.
namespace IssueIcons {

/// The side of an editable cell, the side of a person's picture, the height of a due date and of a label's chip, and
/// the side of a label's dot.
inline constexpr double cellSide = Metrics::rowPicker;
inline constexpr double avatarSide = Metrics::avatar;
inline constexpr double chipHeight = Metrics::chipHeight;
inline constexpr double dotSide = Metrics::labelDot;

/// The offset that centres a length in the available length, rounded to a whole pixel as Qt Quick does.
double centred(double room, double length);

PlacedPicture priority(PriorityLevel level, const IssueStyle &style, double side);
PlacedPicture status(const IssueStatus &status, const IssueStyle &style, double side);
/// The side of the square of a type. The picture from `type` is larger by `typeBorder` on each side.
inline constexpr double typeSide = Metrics::typeIcon;
double typeBorder();
PlacedPicture type(const IssueType &type);
/// The mark before a parent's summary. `fontSize` is that of a text beside it. The picture is larger by `chevronBorder`
/// on each side than the square of the symbol.
PlacedPicture chevron(double fontSize, const QColor &color);
double chevronBorder(double fontSize);
/// The outline and the dot of a label, without its name.
PlacedPicture chip(const QString &label, double width, const IssueStyle &style);
PlacedPicture dot(const QString &label);
/// The outline and the symbol of a due date, without its text.
PlacedPicture due(double width, bool isOverdue, const IssueStyle &style);
/// The person's photograph if `face` is not null, otherwise the initials, or the sign for no assignee without a person.
PlacedPicture assignee(const std::optional<JiraUser> &user, const QImage &face);
/// The smallest background of a row, which is stretched to the row.
PlacedPicture rowFill(const QColor &color);
/// The mark at the left edge of a focused row.
PlacedPicture focusBar(double height, const QColor &color);
/// The background of a cell under the pointer.
PlacedPicture cellFill(QSizeF size, const QColor &color);
PlacedPicture cellEdge(QSizeF size, const QColor &color);

} // namespace IssueIcons
