#pragma once

#include "commands/KeyPress.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// An object that sees the key presses of a window before the item with the focus does.
class KeyHandler : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Only its kinds can be made")

public:
    using QObject::QObject;

    /// True when this handler has consumed the press. Then no other object receives it.
    virtual bool handle(const KeyPress &press) = 0;
};
