#pragma once

#include "commands/CommandTable.h"
#include "state/AppStore.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Tells QML whether there is a screen for creating issues. While there is none, the controls that would open it are
/// disabled.
class CreateScreen : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isAvailable READ isAvailable CONSTANT FINAL)

public:
    using QObject::QObject;

    static bool isAvailable() { return isOffered(Command::NewIssue); }
    /// Requests the screen, for a project or, with an empty key, for the project that the list suggests.
    Q_INVOKABLE static void open(AppStore *store, const QString &projectKey);
};
