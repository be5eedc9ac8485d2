#pragma once

#include <QObject>
#include <QSocketNotifier>

/// Tells when the system asks the process to end: by SIGTERM, SIGINT or SIGHUP, as it does when the desktop's session
/// ends. The second signal of a kind ends the process at once, as every signal does without this object. One per process.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    void asked();

private:
    QSocketNotifier m_notifier;
};
