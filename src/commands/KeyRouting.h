#pragma once

#include "commands/Command.h"
#include "commands/KeyPress.h"

#include <optional>
#include <span>

/// One row of the key map: a key, what must be held with it, and what it asks for.
struct KeyBinding
{
    enum class Flags { None, ControlOnly, Any };
    enum class Shift { Ignored, NotHeld };

    /// A key that types nothing of its own, or the space bar; `Key_unknown` in a row that goes by the character.
    Qt::Key key = Qt::Key_unknown;
    /// A lower-case letter or a digit; null in a row that goes by the key.
    char16_t character = 0;
    Flags flags = Flags::None;
    Shift shift = Shift::Ignored;
    Command command;
};

/// The whole key map of the main window. No two rows take the same press.
std::span<const KeyBinding> keyBindings();

/// What a press asks for; nothing for a press that the key map leaves alone. Keys go by their name, letters and digits
/// as `KeyPress` reads them, so that each works without Shift under any layout; Caps Lock and the keypad do not count.
std::optional<Command> route(const KeyPress &press);
