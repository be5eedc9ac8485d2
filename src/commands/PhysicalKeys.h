#pragma once

#include <QChar>

#include <optional>

/// The character at a key's position on a US QWERTY keyboard: a lower-case letter, a digit, a comma or a full stop.
/// Nothing for the positions of other characters. Scan codes are those of the window system: evdev's plus 8.
std::optional<QChar> characterAtPlace(quint32 scanCode);

/// The scan code of the key that `characterAtPlace` gives this character for; 0 for all other characters.
quint32 scanCodeAtPlace(QChar character);

/// The digit 1 to 9 of a key in the top row; nothing for all other keys, including those of the keypad.
std::optional<int> digitAtPlace(quint32 scanCode);

/// The scan code of the space bar.
inline constexpr quint32 spaceBarScanCode = 65;
