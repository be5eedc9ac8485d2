#pragma once

#include "model/Issue.h"
#include "screens/issues/RowPlan.h"
#include "screens/issues/RowStyle.h"
#include "screens/kit/PictureTexture.h"

#include <QImage>
#include <QPointF>

#include <vector>

/// A picture and the place of its upper left corner, in logical pixels.
struct PlacedPicture
{
    PictureKey key;
    PicturePainter paint;
    QPointF place;
};

/// What a row shows.
struct RowPicturesInput
{
    const Issue &issue;
    const RowPlan &plan;
    const RowStyle &style;
    bool isOverdue = false;
    /// The assignee's own picture, if it is there.
    QImage person;
    /// In logical pixels.
    double height = 0;
};

/// All that is drawn on a row beside its texts.
std::vector<PlacedPicture> rowPictures(const RowPicturesInput &row);
