#include "commands/KeyRouting.h"

#include "commands/PhysicalKeys.h"

#include <algorithm>
#include <array>

namespace {

using Flags = KeyBinding::Flags;
using Shift = KeyBinding::Shift;

constexpr KeyBinding onKey(Qt::Key key, Flags flags, Command command)
{
    return {.key = key, .flags = flags, .command = command};
}

constexpr KeyBinding onLetter(char16_t letter, Command command, Flags flags = Flags::None)
{
    return {.character = letter, .flags = flags, .command = command};
}

constexpr KeyBinding onDigit(char16_t digit, Command command)
{
    return {.character = digit, .shift = Shift::NotHeld, .command = command};
}

constexpr std::array bindings{
    onKey(Qt::Key_Return, Flags::None, Command::OpenIssue),
    onKey(Qt::Key_Enter, Flags::None, Command::OpenIssue),
    onKey(Qt::Key_Return, Flags::ControlOnly, Command::OpenWindow),
    onKey(Qt::Key_Enter, Flags::ControlOnly, Command::OpenWindow),
    onKey(Qt::Key_Space, Flags::None, Command::Peek),
    onKey(Qt::Key_Escape, Flags::Any, Command::Escape),
    onKey(Qt::Key_Down, Flags::None, Command::MoveDown),
    onLetter(u'j', Command::MoveDown),
    onKey(Qt::Key_Up, Flags::None, Command::MoveUp),
    onLetter(u'k', Command::MoveUp),
    onKey(Qt::Key_PageDown, Flags::None, Command::MovePageDown),
    onKey(Qt::Key_PageUp, Flags::None, Command::MovePageUp),
    onKey(Qt::Key_Home, Flags::None, Command::MoveToFirst),
    onKey(Qt::Key_End, Flags::None, Command::MoveToLast),
    onLetter(u'a', Command::CheckVisible, Flags::ControlOnly),
    onLetter(u'c', Command::NewIssue),
    onLetter(u's', Command::PickStatus),
    onLetter(u'p', Command::PickPriority),
    onLetter(u'a', Command::PickAssignee),
    onLetter(u'l', Command::PickLabels),
    onLetter(u'i', Command::AssignToMe),
    onLetter(u'x', Command::ToggleCheck),
    onDigit(u'1', Command::ShowList),
    onDigit(u'2', Command::ShowBoard),
    onLetter(u'?', Command::OpenShortcuts),
};

/// With Shift, some layouts type a wider or a non-breaking space, for which Qt reports another key code.
bool isSpaceBar(const KeyPress &press)
{
    const bool isBlank = press.characters.isEmpty() || press.characters.front().isSpace();
    return press.key == Qt::Key_Space || (press.scanCode == spaceBarScanCode && isBlank);
}

bool isKey(Qt::Key key, const KeyPress &press)
{
    return key == Qt::Key_Space ? isSpaceBar(press) : press.key == key;
}

bool isCharacter(QChar character, const KeyPress &press)
{
    return character.isDigit() ? press.digit() == character.digitValue()
                               : press.isLetter(character);
}

bool allows(Flags flags, const KeyPress &press)
{
    switch (flags) {
    case Flags::None:
        return press.flags() == Qt::NoModifier;
    case Flags::ControlOnly:
        return press.flags() == Qt::ControlModifier;
    case Flags::Any:
        return true;
    }
    return false;
}

bool takes(const KeyBinding &binding, const KeyPress &press)
{
    if (!allows(binding.flags, press) || (binding.shift == Shift::NotHeld && press.isShiftHeld()))
        return false;
    return binding.character ? isCharacter(binding.character, press) : isKey(binding.key, press);
}

} // namespace

std::span<const KeyBinding> keyBindings()
{
    return bindings;
}

bool isMovement(Command command)
{
    switch (command) {
    case Command::MoveDown:
    case Command::MoveUp:
    case Command::MovePageDown:
    case Command::MovePageUp:
    case Command::MoveToFirst:
    case Command::MoveToLast:
        return true;
    default:
        return false;
    }
}

std::optional<Command> route(const KeyPress &press)
{
    const auto row = std::ranges::find_if(
        bindings, [&](const KeyBinding &binding) { return takes(binding, press); });
    return row == bindings.end() ? std::nullopt : std::optional(row->command);
}
