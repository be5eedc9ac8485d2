#pragma once

#include <QAccessible>
#include <QList>
#include <QString>

class QQuickWindow;

/// One thing that a screen reader finds in a window.
struct Spoken
{
    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    QString description;
    QString value;
    QAccessible::State state;
    /// In the window's coordinates, logical pixels.
    QRect box;
};

/// Everything visible that a screen reader finds in a window, in the order of the tree.
QList<Spoken> spokenIn(QQuickWindow &window);
/// The things of a role whose name contains a text.
QList<Spoken> spokenIn(QQuickWindow &window, QAccessible::Role role,
                       const QString &nameContains = {});
