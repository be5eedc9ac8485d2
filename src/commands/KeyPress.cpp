#include "commands/KeyPress.h"

#include "commands/PhysicalKeys.h"

namespace {

/// From this value on, Qt's key codes are those of keys that type no character.
constexpr int firstKeyWithoutCharacter = 0x01000000;

bool isPrintable(const QString &text)
{
    return !text.isEmpty() && text.front().isPrint();
}

/// The character of Qt's key code: in upper case if Shift is held, else in lower case.
QString characterOf(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (key < Qt::Key_Space || key >= firstKeyWithoutCharacter)
        return {};
    const char32_t point = char32_t(key);
    const QString character = QString::fromUcs4(&point, 1);
    return modifiers.testFlag(Qt::ShiftModifier) ? character : character.toLower();
}

std::optional<int> typedDigit(const QString &characters)
{
    if (characters.size() != 1 || characters.front() < u'1' || characters.front() > u'9')
        return std::nullopt;
    return characters.front().unicode() - u'0';
}

} // namespace

KeyPress KeyPress::make(Qt::Key key, quint32 scanCode, const QString &text,
                        Qt::KeyboardModifiers modifiers, const QString &ownCharacters)
{
    return {key, scanCode, isPrintable(text) ? text : characterOf(key, modifiers), ownCharacters,
            modifiers};
}

Qt::KeyboardModifiers KeyPress::flags() const
{
    return modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

QString KeyPress::ownCharacter() const
{
    if (!ownCharacters.isEmpty())
        return ownCharacters.toLower();
    return isShiftHeld() ? QString() : characters.toLower();
}

bool KeyPress::isLetter(QChar letter) const
{
    if (characters.toLower() == letter || (isShiftHeld() && ownCharacter() == letter))
        return true;
    return isOtherScript(characters) && characterAtPlace(scanCode) == letter;
}

std::optional<int> KeyPress::digit() const
{
    if (const auto typed = typedDigit(characters))
        return typed;
    // With AltGr, the key types a different character, so the press does not mean the digit.
    const bool isAlone = !isShiftHeld() && characters.toLower() == ownCharacter();
    return isAlone ? digitAtPlace(scanCode) : std::nullopt;
}

bool isOtherScript(const QString &text)
{
    return !text.isEmpty() && text.front().isLetter() &&
           text.front().script() != QChar::Script_Latin;
}
