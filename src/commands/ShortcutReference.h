#pragma once

#include <QList>
#include <QObject>
#include <QString>

/// Some keys and their effect.
struct ShortcutMeaning
{
    Q_GADGET
    Q_PROPERTY(QString keys MEMBER keys CONSTANT FINAL)
    Q_PROPERTY(QString meaning MEMBER meaning CONSTANT FINAL)

public:
    QString keys;
    QString meaning;

    bool operator==(const ShortcutMeaning &) const = default;
};

/// A group of related keys.
struct ShortcutGroup
{
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QList<ShortcutMeaning> rows MEMBER rows CONSTANT FINAL)

public:
    QString title;
    QList<ShortcutMeaning> rows;

    bool operator==(const ShortcutGroup &) const = default;
};

/// The list of all keys, in groups. The texts use macOS terms and symbols; those of commands come from the table of
/// commands.
QList<ShortcutGroup> shortcutReference();
