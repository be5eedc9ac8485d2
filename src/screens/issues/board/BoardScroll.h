#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// How far a view scrolls in a sixtieth of a second, in logical pixels, while a drag is over it at `position` of its
/// `length`: nothing in the middle, more the nearer an edge is, towards that edge.
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
