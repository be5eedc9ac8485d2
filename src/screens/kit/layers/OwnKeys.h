#pragma once

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/// Attached to an item that handles keys of the window's key map itself while it, or an item inside it, has the focus.
class OwnKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It is attached to an item")
    QML_ATTACHED(OwnKeys)
    /// A list that moves through its rows with the arrow keys and opens a row with Return.
    Q_PROPERTY(bool walksRows MEMBER m_walksRows NOTIFY walksRowsChanged FINAL)

public:
    using QObject::QObject;

    static OwnKeys *qmlAttachedProperties(QObject *item);
    /// True if this is declared for the item.
    static bool walksRows(const QObject &item);

Q_SIGNALS:
    void walksRowsChanged();

private:
    bool m_walksRows = false;
};
