#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Measures a menu, whose rows all take its width.
class MenuMeasure : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The width that the widest row of a menu would like, in logical pixels.
    Q_INVOKABLE qreal widest(QObject *menu) const;
    /// Makes all rows keep room for a tick where one of them has one.
    Q_INVOKABLE void alignMarks(QObject *menu) const;
};
