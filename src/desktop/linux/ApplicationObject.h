#pragma once

#include "desktop/Activation.h"

#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The interface by which desktops start, and call, programs that they have a D-Bus service for. `platformData` may contain
/// an activation token.
class ApplicationObject : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// The most addresses that one call opens. Further ones are ignored.
    static constexpr qsizetype MostAddresses = 8;

    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &addresses, const QVariantMap &platformData);
    /// Unknown actions show the main window.
    Q_SCRIPTABLE void ActivateAction(const QString &action, const QVariantList &parameters,
                                     const QVariantMap &platformData);

Q_SIGNALS:
    void asked(const Activation &activation, const QByteArray &request);
};
