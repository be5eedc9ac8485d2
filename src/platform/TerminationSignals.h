#pragma once

#include <QObject>
#include <QSocketNotifier>

/// Reports when the system asks the process to end with SIGTERM, SIGINT or SIGHUP, for example at the end of the
/// desktop session. A second signal of the same kind ends the process immediately, which is the default action. At most
/// one object per process.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    /// Installs the signal handlers; the destructor restores the default actions.
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    /// The system asked the process to end. Emitted from the event loop, not from the signal handler.
    void asked();

private:
    QSocketNotifier m_notifier;
};
