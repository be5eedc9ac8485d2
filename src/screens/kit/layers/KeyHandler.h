#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// An object that receives the key presses of a layer before the item with the focus does.
class KeyHandler : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Only its kinds can be made")

public:
    using QObject::QObject;

    /// True when this handler has consumed the press. Then no other object receives it.
    virtual bool takes(const QKeyEvent &press) = 0;
    /// True if holding the key down repeats its effect, as it does for movement. The automatic repetition of any other
    /// consumed press is discarded.
    virtual bool repeats(const QKeyEvent &) const { return false; }
    /// Sees each key, mouse, wheel and focus event of the window while the handler's layer is on top. It cannot consume
    /// them.
    virtual void observe(const QEvent &) {}
};
