#pragma once

#include <QChar>

#include <optional>

/// What a QWERTY keyboard of the United States has at a key's place: a lower-case letter, a digit, a comma or a full
/// stop. Nothing for the places of other signs. Scan codes are those of the window system: evdev's plus 8.
std::optional<QChar> characterAtPlace(quint32 scanCode);

/// The digit 1 to 9 whose key of the top row this is; nothing for all other keys, those of the keypad among them.
std::optional<int> digitAtPlace(quint32 scanCode);

/// The scan code of the space bar.
inline constexpr quint32 spaceBarScanCode = 65;
