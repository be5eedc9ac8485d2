#include "commands/ShortcutKey.h"

#include "commands/PhysicalKeys.h"

#include <algorithm>
#include <array>

namespace {

using Shift = ShortcutKey::Shift;

constexpr ShortcutKey shortcut(char16_t character, Qt::KeyboardModifiers flags, Shift shift,
                               Command command)
{
    return {character, flags, shift, command};
}

constexpr Qt::KeyboardModifiers control = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers controlAlt = Qt::ControlModifier | Qt::AltModifier;

constexpr std::array shortcuts{
    shortcut(u'n', control, Shift::NotHeld, Command::NewIssue),
    shortcut(u'k', control, Shift::NotHeld, Command::TogglePalette),
    shortcut(u'r', control, Shift::NotHeld, Command::Reload),
    shortcut(u'.', control, Shift::NotHeld, Command::CopyKeys),
    shortcut(u'.', control, Shift::Held, Command::CopyBranch),
    shortcut(u',', control, Shift::Held, Command::CopyLink),
    shortcut(u'o', control, Shift::Held, Command::OpenInBrowser),
    shortcut(u'1', controlAlt, Shift::NotHeld, Command::ShowList),
    shortcut(u'2', controlAlt, Shift::NotHeld, Command::ShowBoard),
    shortcut(u'i', controlAlt, Shift::NotHeld, Command::ToggleInspector),
};

/// One interpretation of a press.
struct Reading
{
    QString character;
    Shift shift;
};

Shift heldShift(const KeyPress &press)
{
    return press.isShiftHeld() ? Shift::Held : Shift::NotHeld;
}

Reading byOwnCharacter(const KeyPress &press)
{
    const QString typed = press.characters.toLower();
    const bool isLetter = !typed.isEmpty() && typed.front().isLetter();
    // A letter is the same with and without Shift. For other keys, the character without Shift may be unknown while
    // Shift is held.
    const QString own = press.ownCharacter();
    return {own.isEmpty() && isLetter ? typed : own, heldShift(press)};
}

Reading byShiftedCharacter(const KeyPress &press)
{
    const QString typed = press.characters.toLower();
    const bool isUsedUp = press.isShiftHeld() && typed != byOwnCharacter(press).character;
    return {isUsedUp ? typed : QString(), Shift::NotHeld};
}

/// The scan codes of the keys that type characters, without the keypad: from the digit 1 to the last key before the
/// right Shift.
constexpr quint32 firstTypingKey = 10;
constexpr quint32 lastTypingKey = 61;

bool isTypedWithoutShift(QChar character, const OwnCharacters &layout)
{
    for (quint32 key = firstTypingKey; key <= lastTypingKey; ++key) {
        if (layout(key).toLower() == character)
            return true;
    }
    return false;
}

bool isLatinLetter(const QString &text)
{
    return !text.isEmpty() && text.front().isLetter() && !isOtherScript(text);
}

/// The interpretation by physical position. The position of a digit always counts, because some layouts have accented
/// letters there. The position of another sign counts unless the layout types a Latin letter there. The position of a
/// letter counts only in a layout of another script.
Reading byPlace(const KeyPress &press)
{
    const QString own = press.ownCharacter().isEmpty() ? press.characters : press.ownCharacter();
    const auto character = characterAtPlace(press.scanCode);
    const bool isDigit = character && character->isDigit();
    const bool isHidden = isDigit || isOtherScript(own) ||
                          (!isLatinLetter(own) && character && !character->isLetter());
    return {isHidden && character ? QString(*character) : QString(), heldShift(press)};
}

std::optional<Command> commandOf(const Reading &reading, Qt::KeyboardModifiers flags)
{
    const auto row = std::ranges::find_if(shortcuts, [&](const ShortcutKey &key) {
        return reading.character == QChar(key.character) && key.shift == reading.shift &&
               key.flags == flags;
    });
    return row == shortcuts.end() ? std::nullopt : std::optional(row->command);
}

} // namespace

std::span<const ShortcutKey> shortcutKeys()
{
    return shortcuts;
}

std::optional<Command> shortcutCommand(const KeyPress &press)
{
    for (const auto &read : {byOwnCharacter, byShiftedCharacter, byPlace}) {
        if (const auto command = commandOf(read(press), press.flags()))
            return command;
    }
    return std::nullopt;
}

QString printedCharacter(const ShortcutKey &key, const OwnCharacters &layout)
{
    const QChar character(key.character);
    if (key.shift == Shift::NotHeld || character.isLetterOrNumber())
        return character.toUpper();
    const QString atPlace = layout(scanCodeAtPlace(character));
    const bool isPlaceInUse = !atPlace.isEmpty() && !isLatinLetter(atPlace);
    return isPlaceInUse && !isTypedWithoutShift(character, layout) ? atPlace.toUpper()
                                                                   : QString(character);
}
