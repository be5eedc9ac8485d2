#pragma once

#include <QString>
#include <Qt>

#include <optional>

class QKeyEvent;

/// One press of a key: which key it was, and what the user's keyboard layout makes of it.
struct KeyPress
{
    /// The key as Qt names it, after the layout.
    Qt::Key key = Qt::Key_unknown;
    /// The key's place on the keyboard: evdev's code plus 8, whatever the layout; 0 when the system does not tell.
    quint32 scanCode = 0;
    /// What the key types with the Shift and AltGr that are held, as if Control, Alt and Meta were not; empty for keys
    /// that type nothing.
    QString characters;
    /// What the key types when it is pressed alone; empty when that is not known.
    QString ownCharacters;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;

    /// A press as Qt reports it. Control turns the `text` of a letter into a control character; its key then tells the
    /// letter.
    static KeyPress make(Qt::Key key, quint32 scanCode, const QString &text,
                         Qt::KeyboardModifiers modifiers, const QString &ownCharacters = {});
    /// The press of an event, with the layout's own characters as the platform knows them. Needs a QGuiApplication for
    /// these; without one they are unknown.
    static KeyPress from(const QKeyEvent &event);

    bool isShiftHeld() const { return modifiers.testFlag(Qt::ShiftModifier); }
    /// The held modifiers that make a command of a key: Control, Alt and Meta. Shift and the keypad's do not count.
    Qt::KeyboardModifiers flags() const;
    /// What the key types alone, in lower case: as told, or else as typed when Shift is not held. Empty when neither
    /// tells.
    QString ownCharacter() const;

    /// True for the key that types this lower-case letter, with or without Shift; under a layout of another script,
    /// which has no key for it, for the key at its place on a QWERTY keyboard.
    bool isLetter(QChar letter) const;
    /// The digit 1 to 9 that the press means: the one typed, on whichever key and level; or, without Shift, the one
    /// whose key of the top row it is when the layout types something else there.
    std::optional<int> digit() const;

    bool operator==(const KeyPress &) const = default;
};

/// Whether a text begins with a letter that the Latin alphabet does not have.
bool isOtherScript(const QString &text);
