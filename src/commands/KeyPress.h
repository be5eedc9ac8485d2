#pragma once

#include <QString>
#include <Qt>

#include <optional>

class QKeyEvent;

/// A key press: the key, and the characters that it types in the user's keyboard layout.
struct KeyPress
{
    /// Qt's code of the key in the user's keyboard layout.
    Qt::Key key = Qt::Key_unknown;
    /// The key's physical position: evdev's code plus 8, independent of the layout; 0 if the system does not report it.
    quint32 scanCode = 0;
    /// The text that the key types with the held Shift and AltGr, ignoring Control, Alt and Meta; empty for keys that
    /// type nothing.
    QString characters;
    /// The text that the key types without modifiers; empty if it is not known.
    QString ownCharacters;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;

    /// Creates a press from the values that Qt reports. With Control, the `text` of a letter is a control character;
    /// the letter is then taken from `key`.
    static KeyPress make(Qt::Key key, quint32 scanCode, const QString &text,
                         Qt::KeyboardModifiers modifiers, const QString &ownCharacters = {});
    /// Creates a press from an event, with `ownCharacters` from the platform. These require a QGuiApplication; without
    /// one they are unknown.
    static KeyPress from(const QKeyEvent &event);

    bool isShiftHeld() const { return modifiers.testFlag(Qt::ShiftModifier); }
    /// The held modifiers among Control, Alt and Meta, which distinguish shortcuts from typing. Shift and the keypad
    /// modifier are left out.
    Qt::KeyboardModifiers flags() const;
    /// The text that the key types without modifiers, in lower case: `ownCharacters`, or, if they are unknown and Shift
    /// is not held, `characters`. Empty if neither is available.
    QString ownCharacter() const;

    /// True for the key that types this lower-case letter, with or without Shift. In a layout of another script, which
    /// has no such key, true for the key at the letter's position on a QWERTY keyboard.
    bool isLetter(QChar letter) const;
    /// The digit 1 to 9 of the press: the digit that it types, with any key and modifiers. If it types something else
    /// and Shift is not held, the digit of this key in the top row of a QWERTY keyboard.
    std::optional<int> digit() const;

    bool operator==(const KeyPress &) const = default;
};

/// The text that a key types without modifiers in the user's current keyboard layout; empty if the platform does not
/// report it. Requires a QGuiApplication; without one it is empty. UI thread only.
QString ownCharactersAt(quint32 scanCode);

/// Whether a text begins with a letter that is not in the Latin alphabet.
bool isOtherScript(const QString &text);
