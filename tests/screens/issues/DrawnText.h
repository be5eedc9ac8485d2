#pragma once

#include "screens/issues/face/IssueFace.h"

#include <optional>

/// A text that a row or a card draws.
struct DrawnText
{
    IssueFace *face = nullptr;
    Caption caption;

    /// The box of the text in its window, in logical pixels.
    QRectF box() const;
};

/// The first visible text of these words on a row or a card below `root`; nothing if none shows it.
std::optional<DrawnText> drawnText(QQuickItem *root, const QString &words);
