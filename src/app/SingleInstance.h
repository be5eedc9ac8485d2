#pragma once

#include "desktop/Activation.h"
#include "platform/Clock.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QObject>

#include <memory>

/// Ensures that only one process per profile runs. Later processes ask the first one to show itself, pass on what they were
/// asked for, and then end. A process that owns the profile but does not respond within two seconds is treated as ended.
/// This works without a session bus; what the desktop asks for over the bus is carried out by the same `RequestHandler`.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `profile` identifies the profile; any text. The clock must outlive this object.
    SingleInstance(const QString &profile, Clock &clock);

    /// What a process asks another one for has at most this many bytes. Longer requests are not passed on.
    static constexpr qsizetype LargestRequest = 4096;

    /// Determines which process this is. One of the signals `isFirst` and `isSecond` follows, possibly before this
    /// returns. `request` is what the process was asked for, see `Requests`; it may be any bytes. `activation` is what the
    /// desktop has passed to the process.
    void start(const QByteArray &request = {}, const Activation &activation = {});

Q_SIGNALS:
    /// This is the first process of the profile, or the other process does not respond.
    void isFirst();
    /// Another process is running and was asked to show itself.
    void isSecond();
    /// Another process asked this one to show itself, and passed on its activation and its request. Both may be empty.
    void asked(const Activation &activation, const QByteArray &request);

private:
    void listen();
    void answer();
    void ask();
    void retry();
    void giveUp();

    QString m_name;
    QByteArray m_request;
    Activation m_activation;
    Clock &m_clock;
    QLockFile m_lock;
    QLocalServer m_server;
    std::unique_ptr<QLocalSocket> m_socket;
    Clock::TimerHandle m_retry;
    Clock::TimerHandle m_limit;
};
