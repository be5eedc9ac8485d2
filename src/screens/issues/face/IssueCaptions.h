#pragma once

#include "screens/issues/face/Caption.h"
#include "screens/theme/TypeScale.h"

/// The texts that rows and cards are made of.
namespace IssueCaptions {

/// Before the name in its chip, and before the date in its badge; beside a name in its chip, in logical pixels.
inline constexpr double nameInset = 19;
inline constexpr double dateInset = 23;
inline constexpr double chipFrame = 26;

/// In the middle of a room that begins at `corner` and is `height` high.
Caption inMiddle(QPointF corner, double height, const Caption &caption);
/// Not placed yet.
Caption label(const QString &name, const QColor &color);
/// How many labels stand behind those that are shown.
Caption more(qsizetype count, const QColor &color);
Caption due(const QString &text, const QColor &color);
Caption key(const QString &text, const QColor &color);

} // namespace IssueCaptions
