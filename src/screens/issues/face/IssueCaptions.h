#pragma once

#include "screens/issues/face/Caption.h"
#include "screens/theme/TypeScale.h"

/// The captions of rows and cards.
namespace IssueCaptions {

/// A text in a role of the type scale, without a position.
Caption caption(const QString &text, TypeScale::Role role, int weight, const QColor &color,
                bool isTabular = false);
/// Places a caption in the vertical middle of an area that starts at `corner` and is `height` high.
Caption inMiddle(QPointF corner, double height, const Caption &caption);
/// The caption of a label, without a position.
Caption label(const QString &name, const QColor &color);
/// The number of labels that are not shown.
Caption more(qsizetype count, const QColor &color);
Caption due(const QString &text, const QColor &color);
Caption key(const QString &text, const QColor &color);

} // namespace IssueCaptions
