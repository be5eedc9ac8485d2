#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <qqmlintegration.h>

/// The modal alert that ends a check from the menu.
struct UpdateAlert
{
    Q_GADGET
    QML_VALUE_TYPE(updateAlert)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QStringList buttons MEMBER buttons CONSTANT FINAL)
    Q_PROPERTY(bool isWarning MEMBER isWarning CONSTANT FINAL)

public:
    QString title;
    QString text;
    /// The titles of the buttons, the default one first. Empty if the alert has only the default button of the desktop.
    /// If there are any, the first one calls `Updater::installAndRelaunch`.
    QStringList buttons;
    bool isWarning = false;

    bool operator==(const UpdateAlert &) const = default;
};
