#pragma once

#include <QObject>
#include <QQuickItem>
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
    /// A page that scrolls with Page Up, Page Down, Home and End.
    Q_PROPERTY(bool scrolls MEMBER m_scrolls NOTIFY scrollsChanged FINAL)

public:
    using QObject::QObject;

    static OwnKeys *qmlAttachedProperties(QObject *item);
    /// True if this is declared for the item or for one around it. (A list forwards the focus to its current row.)
    static bool isInWalkedList(const QQuickItem &item);
    static bool isInScrolledPage(const QQuickItem &item);

Q_SIGNALS:
    void walksRowsChanged();
    void scrollsChanged();

private:
    static bool isAround(const QQuickItem &item, bool OwnKeys::*declared);

    bool m_walksRows = false;
    bool m_scrolls = false;
};
