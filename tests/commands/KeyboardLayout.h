#pragma once

#include "commands/KeyPress.h"

#include <QHash>
#include <QString>

/// A keyboard layout as the window system describes it, read from `layouts/<name>.tsv`, and what Qt reports for presses
/// under it.
class KeyboardLayout
{
public:
    /// What the platform tells of a key's own character: all, or nothing, as where no keyboard map is at hand.
    enum class OwnCharacters { Known, Unknown };

    static KeyboardLayout load(const QString &name);

    /// The scan codes of all keys of the table.
    QList<quint32> scanCodes() const { return m_keys.keys(); }
    /// The press of a key; Shift selects its second level.
    KeyPress press(quint32 scanCode, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                   OwnCharacters own = OwnCharacters::Known) const;
    /// The key that types the text alone; 0 when there is none.
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
