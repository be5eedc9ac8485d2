#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The distance that a view scrolls in a sixtieth of a second, in logical pixels, while a drag is above it at
/// `position` of its `length`. 0 in the middle, and larger the nearer the drag is to an edge. Negative towards the
/// start.
double edgeScrollStep(double position, double length);

/// `edgeScrollStep`, for QML.
class BoardScroll : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static double step(double position, double length)
    {
        return edgeScrollStep(position, length);
    }
};
