#pragma once

#include <QList>
#include <QObject>
#include <QString>

/// What some keys do.
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

/// Keys for things of one kind.
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

/// All that keys do, in groups. The texts are the Mac's; those of commands come from the table of commands.
QList<ShortcutGroup> shortcutReference();
