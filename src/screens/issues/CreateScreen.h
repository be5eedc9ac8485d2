#pragma once

#include "state/AppStore.h"
#include "state/CreateScreen.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Tells whether there is a screen for creating issues. While there is none, the commands that would open it are
/// disabled, because requesting it would only remove the keyboard focus.
class CreateScreen : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isAvailable READ isAvailable CONSTANT FINAL)

public:
    using QObject::QObject;

    static constexpr bool isAvailable() { return hasCreateScreen; }
    /// Requests the screen, for a project or, with an empty key, for the project that the list suggests.
    Q_INVOKABLE static void open(AppStore *store, const QString &projectKey);
};
