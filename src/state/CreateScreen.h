#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Opens the sheet for a new issue, for QML.
class CreateScreen : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Requests the sheet, for a project or, with an empty key, for the project that the list suggests.
    Q_INVOKABLE static void open(AppStore *store, const QString &projectKey);
};
