#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Gives the keyboard's focus back when a popover or a sheet goes.
class FocusReturn : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The item to come back to; null without one.
    Q_INVOKABLE QQuickItem *holder(const QQuickItem *near) const;
    /// Gives the focus to `holder`, unless another item has taken it meanwhile.
    Q_INVOKABLE void giveBack(QQuickItem *holder) const;
};
