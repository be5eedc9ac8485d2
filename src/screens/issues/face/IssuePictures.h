#pragma once

#include "model/Issue.h"
#include "screens/issues/face/IssueStyle.h"
#include "screens/kit/drawn/PictureTexture.h"

#include <QImage>
#include <QPointF>

/// A picture and the place of its upper left corner, in logical pixels.
struct PlacedPicture
{
    PictureKey key;
    PicturePainter paint;
    QPointF place;

    /// The same picture somewhere else.
    PlacedPicture at(QPointF corner) const { return {key, paint, corner}; }
};

/// The pictures that rows and cards are made of, not placed yet. Sizes are in logical pixels.
namespace IssuePictures {

/// Of a cell that can be changed on the spot; of a person; of a due date and a label's chip; of a label's dot.
inline constexpr double cellSide = 22;
inline constexpr double avatarSide = 18;
inline constexpr double chipHeight = 19;
inline constexpr double dotSide = 7;

/// Where something stands that is centred in a room, on a whole pixel as Qt Quick places it.
double centred(double room, double length);

PlacedPicture priority(PriorityLevel level, const IssueStyle &style, double side);
PlacedPicture status(const IssueStatus &status, const IssueStyle &style, double side);
/// The side of a type's square; `type` is drawn `typeBorder` larger on each side.
inline constexpr double typeSide = 13;
double typeBorder();
PlacedPicture type(const IssueType &type);
/// The outline and the dot of a label, without its name.
PlacedPicture chip(const QString &label, double width, const IssueStyle &style);
PlacedPicture dot(const QString &label);
/// The outline and the symbol of a due date, without its text.
PlacedPicture due(double width, bool isOverdue, const IssueStyle &style);
/// The person's own picture, if `face` is one; else the initials; nobody's sign without a person.
PlacedPicture assignee(const std::optional<JiraUser> &user, const QImage &face);
/// What lies under a cell while the pointer is on it.
PlacedPicture cellFill(QSizeF size, const QColor &color);
PlacedPicture cellEdge(QSizeF size, const QColor &color);

} // namespace IssuePictures
