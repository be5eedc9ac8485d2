#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Restores the keyboard focus when a popover or a sheet closes.
class FocusReturn : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The item to which the focus should return. Null if there is none.
    Q_INVOKABLE QQuickItem *holder(const QQuickItem *near) const;
    /// Gives the focus to `holder`, unless another item has taken the focus meanwhile.
    Q_INVOKABLE void giveBack(QQuickItem *holder) const;
};
