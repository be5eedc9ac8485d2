#pragma once

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/// Attached to an item that has the keyboard focus or contains the focused item. Reports when a key requests the
/// context menu: the menu key, or Shift+F10 on keyboards that have none.
class ContextMenuKey : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It is attached to an item")
    QML_ATTACHED(ContextMenuKey)

public:
    explicit ContextMenuKey(QObject *item);

    static ContextMenuKey *qmlAttachedProperties(QObject *item);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void pressed();
};
