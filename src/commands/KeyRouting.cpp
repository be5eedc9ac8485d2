#include "commands/KeyRouting.h"

#include "commands/PhysicalKeys.h"

#include <algorithm>
#include <array>

namespace {

using Flags = KeyBinding::Flags;
using Shift = KeyBinding::Shift;

constexpr KeyBinding onKey(Qt::Key key, Flags flags, KeyCommand command)
{
    return {.key = key, .flags = flags, .command = command};
}

constexpr KeyBinding onLetter(char16_t letter, KeyCommand command)
{
    return {.character = letter, .command = command};
}

constexpr KeyBinding onDigit(char16_t digit, KeyCommand command)
{
    return {.character = digit, .shift = Shift::NotHeld, .command = command};
}

constexpr std::array bindings{
    onKey(Qt::Key_Return, Flags::None, KeyCommand::OpenInspector),
    onKey(Qt::Key_Enter, Flags::None, KeyCommand::OpenInspector),
    onKey(Qt::Key_Return, Flags::ControlOnly, KeyCommand::OpenWindow),
    onKey(Qt::Key_Enter, Flags::ControlOnly, KeyCommand::OpenWindow),
    onKey(Qt::Key_Space, Flags::None, KeyCommand::Peek),
    onKey(Qt::Key_Escape, Flags::Any, KeyCommand::Escape),
    onKey(Qt::Key_Down, Flags::None, KeyCommand::MoveDown),
    onLetter(u'j', KeyCommand::MoveDown),
    onKey(Qt::Key_Up, Flags::None, KeyCommand::MoveUp),
    onLetter(u'k', KeyCommand::MoveUp),
    onLetter(u'c', KeyCommand::NewIssue),
    onLetter(u's', KeyCommand::PickStatus),
    onLetter(u'p', KeyCommand::PickPriority),
    onLetter(u'a', KeyCommand::PickAssignee),
    onLetter(u'l', KeyCommand::PickLabels),
    onLetter(u'i', KeyCommand::AssignToMe),
    onLetter(u'x', KeyCommand::ToggleCheck),
    onDigit(u'1', KeyCommand::ShowList),
    onDigit(u'2', KeyCommand::ShowBoard),
};

/// With Shift some layouts type a wider or an unbreakable blank, which Qt gives another name.
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

std::optional<KeyCommand> route(const KeyPress &press)
{
    const auto row = std::ranges::find_if(
        bindings, [&](const KeyBinding &binding) { return takes(binding, press); });
    return row == bindings.end() ? std::nullopt : std::optional(row->command);
}
