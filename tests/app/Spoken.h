#pragma once

#include <QAccessible>
#include <QList>
#include <QString>

class QQuickWindow;

/// One element that a screen reader finds in a window.
struct Spoken
{
    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    QString description;
    QString value;
    QAccessible::State state;
    /// In window coordinates, in logical pixels.
    QRect box;
};

/// All visible elements that a screen reader finds in a window, in the order of the accessibility tree.
QList<Spoken> spokenIn(QQuickWindow &window);
/// The elements of a role whose name contains a text.
QList<Spoken> spokenIn(QQuickWindow &window, QAccessible::Role role,
                       const QString &nameContains = {});
/// Performs the press action of the first visible element of a role whose name contains a text, as a screen reader
/// does. False if the element does not exist or offers no such action.
bool pressAction(QQuickWindow &window, QAccessible::Role role, const QString &nameContains);
