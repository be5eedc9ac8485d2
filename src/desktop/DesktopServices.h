#pragma once

#include "desktop/Activation.h"
#include "state/AppStore.h"

#include <QObject>

#include <memory>

/// What the program offers to the user's desktop: its search finds open issues, and its launcher starts
/// actions. A desktop without one of them simply does not use it. UI thread only.
class DesktopServices : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Creates the implementation for the operating system that the program runs on; null if there is none. The store must
    /// outlive it.
    static std::unique_ptr<DesktopServices> ofThisSystem(AppStore &store);

Q_SIGNALS:
    /// The desktop asks for something, see `Requests`. The request may be any bytes; if it is empty, the program should
    /// show itself.
    void asked(const Activation &activation, const QByteArray &request);
};
