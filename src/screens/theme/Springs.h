#pragma once

#include <QEasingCurve>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The springs of all animations, as easing curves. Each is combined with the durations of `Motion` that name it. A
/// curve of fixed length is within 1 % of the spring and needs no computation per frame.
class Springs : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Damping 0.85, for every visible change of state.
    Q_PROPERTY(QEasingCurve even READ even CONSTANT FINAL)
    /// Damping 0.7, a slight overshoot, for toasts and the selection bar when they appear.
    Q_PROPERTY(QEasingCurve soft READ soft CONSTANT FINAL)
    /// Damping 1, no overshoot, for toasts when they disappear.
    Q_PROPERTY(QEasingCurve firm READ firm CONSTANT FINAL)

public:
    static QEasingCurve even();
    static QEasingCurve soft();
    static QEasingCurve firm();
};
