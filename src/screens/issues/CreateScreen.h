#pragma once

#include "state/CreateScreen.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Tells whether there is a screen on which issues are created. Until there is one, what would lead to it is disabled:
/// asking for it would only take the keyboard away.
class CreateScreen : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isAvailable READ isAvailable CONSTANT FINAL)

public:
    using QObject::QObject;

    static constexpr bool isAvailable() { return hasCreateScreen; }
};
