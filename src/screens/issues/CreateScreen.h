#pragma once

#include "state/AppStore.h"
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
    /// Asks for it, in a project or, with an empty key, where the list leads to.
    Q_INVOKABLE static void open(AppStore *store, const QString &projectKey);
};
