#pragma once

#include "commands/KeyPress.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What wants to see the key presses of a window before the item with the focus does.
class KeyHandler : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Only its kinds can be made")

public:
    using QObject::QObject;

    /// True when the press was for this handler; nobody else gets it then.
    virtual bool handle(const KeyPress &press) = 0;
};
