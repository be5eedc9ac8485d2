#pragma once

#include "commands/Command.h"
#include "commands/KeyPress.h"

#include <functional>
#include <optional>
#include <span>

/// The shortcut of one menu command.
struct ShortcutKey
{
    enum class Shift { Held, NotHeld };

    /// A lower-case letter, a digit, a comma or a full stop.
    char16_t character = 0;
    /// Exactly these of Control, Alt and Meta must be held.
    Qt::KeyboardModifiers flags;
    Shift shift = Shift::NotHeld;
    Command command;
};

/// The shortcuts of the menu commands that have one. No two rows have the same key, flags and Shift.
std::span<const ShortcutKey> shortcutKeys();

/// The menu command of a press; nothing if the press is not a shortcut.
///
/// The key is identified in three ways, of which the first that gives a command is used. This way, every shortcut can
/// be typed in any layout, and Shift always distinguishes the shortcuts that differ only in Shift:
///
/// 1. by the character that it types without modifiers, with Shift as it is held: the key "." of QWERTY, QWERTZ and
///    BÉPO;
/// 2. by the character that it types with Shift, as if Shift was not held: the "." of AZERTY, which requires Shift;
/// 3. by its position on a QWERTY keyboard, with Shift as it is held, unless the layout has a Latin letter there (at
///    the positions of digits, even then): the key ":" of AZERTY for ".", the digits of AZERTY and BÉPO, and all
///    letters in layouts of other scripts.
std::optional<Command> shortcutCommand(const KeyPress &press);

/// The text that a key types without modifiers, by its scan code; empty if it is not known.
using OwnCharacters = std::function<QString(quint32 scanCode)>;

/// The character of the key that a user of this layout has to press for a shortcut, in upper case. That is the
/// shortcut's own, except for a sign with Shift that no key of the layout types without Shift: then it is that of the
/// key at the sign's position. For example, "." with Shift is ":" on AZERTY, where the key of "." requires Shift itself.
QString printedCharacter(const ShortcutKey &key, const OwnCharacters &layout);
