#pragma once

#include "commands/Command.h"
#include "commands/KeyPress.h"

#include <optional>
#include <span>

/// One row of the key map: a key, the required modifiers, and the command.
struct KeyBinding
{
    enum class Flags { None, ControlOnly, Any };
    enum class Shift { Ignored, NotHeld };

    /// A key that types no character, or the space bar; `Key_unknown` in a row that is matched by `character`.
    Qt::Key key = Qt::Key_unknown;
    /// A lower-case letter, a digit or a sign; null in a row that is matched by `key`.
    char16_t character = 0;
    Flags flags = Flags::None;
    Shift shift = Shift::Ignored;
    Command command;
};

/// The complete key map of the main window. No two rows match the same press.
std::span<const KeyBinding> keyBindings();

/// Whether a command moves the focus among the issues, so that holding its key repeats it.
bool isMovement(Command command);

/// The command of a press; nothing for a press that is not in the key map. Letters and digits are matched with
/// `KeyPress::isLetter` and `KeyPress::digit`, so that each works without Shift in any layout. Other keys are matched
/// by their Qt code. Caps Lock and the keypad modifier are ignored.
std::optional<Command> route(const KeyPress &press);
