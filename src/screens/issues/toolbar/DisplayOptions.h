#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The properties with one of them inverted. Its name is "key", "priority", "type", "labels", "assignee", "dueDate" or
/// "updated". Any other name changes nothing.
DisplayProperties toggledDisplay(DisplayProperties display, const QString &name);

/// Changes the columns that rows show.
class DisplayOptions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)

public:
    using QObject::QObject;

    Q_INVOKABLE void toggle(const QString &name);

Q_SIGNALS:
    void storeChanged();

private:
    QPointer<AppStore> m_store;
};
