#pragma once

#include "commands/Command.h"
#include "commands/KeyPress.h"

#include <optional>
#include <span>

/// The shortcut of one menu command.
struct ShortcutKey
{
    enum class Shift { Held, NotHeld };

    /// A lower-case letter, a digit, a comma or a full stop.
    char16_t character = 0;
    /// Of Control, Alt and Meta, exactly these.
    Qt::KeyboardModifiers flags;
    Shift shift = Shift::NotHeld;
    Command command;
};

/// The shortcuts of the menu commands that have one. No two rows have the same key, flags and Shift.
std::span<const ShortcutKey> shortcutKeys();

/// The menu command of a press; nothing when it is no shortcut.
///
/// The key is told in three ways, the first that leads to a command counting, so that Shift always keeps apart what it
/// should, and every shortcut has a press under any layout:
///
/// 1. by what it types alone, with Shift as it is held: the key "." of QWERTY, QWERTZ and BÉPO;
/// 2. by what it types with Shift, as a press without Shift: the "." that AZERTY has only with Shift;
/// 3. by its place on a QWERTY keyboard, with Shift as it is held, unless the layout has a Latin letter there: the key
///    ":" of AZERTY for ".", the digits of AZERTY and BÉPO, and all letters under other scripts.
std::optional<Command> shortcutCommand(const KeyPress &press);
