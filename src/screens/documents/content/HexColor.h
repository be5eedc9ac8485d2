#pragma once

#include <QColor>
#include <QStringView>

#include <optional>

/// The opaque sRGB colour of a text of six hexadecimal digits, with or without one leading "#". Nothing for any other
/// text.
std::optional<QColor> colorFromHex(QStringView hex);
