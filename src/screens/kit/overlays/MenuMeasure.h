#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Measures menus, in which all rows have the width of the menu.
class MenuMeasure : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The implicit width of the widest row of a menu, in logical pixels.
    Q_INVOKABLE qreal widest(QObject *menu) const;
    /// Makes all rows reserve space for a check mark if one of them has a check mark.
    Q_INVOKABLE void alignMarks(QObject *menu) const;
};
