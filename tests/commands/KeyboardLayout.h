#pragma once

#include "commands/KeyPress.h"

#include <QHash>
#include <QString>

/// A keyboard layout as the window system describes it, read from `layouts/<name>.tsv`. It creates the key presses that
/// Qt reports with this layout.
class KeyboardLayout
{
public:
    /// Whether the platform reports the character of a key without modifiers. Without a keyboard map it does not.
    enum class OwnCharacters { Known, Unknown };

    static KeyboardLayout load(const QString &name);

    /// The scan codes of all keys of the table.
    QList<quint32> scanCodes() const { return m_keys.keys(); }
    /// The press of a key. Shift selects the key's second level.
    KeyPress press(quint32 scanCode, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                   OwnCharacters own = OwnCharacters::Known) const;
    /// The scan code of the key that types the text without modifiers, or 0 if there is none.
    quint32 keyOf(const QString &text) const;

private:
    struct Level
    {
        QString symbol;
        QString text;
    };
    struct Key
    {
        Level alone;
        Level shifted;
    };

    QHash<quint32, Key> m_keys;
};
