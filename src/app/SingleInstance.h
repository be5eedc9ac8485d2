#pragma once

#include "platform/Clock.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QObject>

#include <memory>

/// Ensures that only one process per profile runs. Later processes ask the first one to show itself, pass on what they were
/// asked to open, and then end. A
/// process that owns the profile but does not respond within two seconds is treated as ended.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `profile` identifies the profile; any text. The clock must outlive this object.
    SingleInstance(const QString &profile, Clock &clock);

    /// What a process asks another one to open has at most this many bytes. Longer requests are not passed on.
    static constexpr qsizetype LargestRequest = 4096;

    /// Determines which process this is. One of the signals `isFirst` and `isSecond` follows, possibly before this
    /// returns. `request` is what the process was asked to open; it may be any bytes.
    void start(const QByteArray &request = {});

Q_SIGNALS:
    /// This is the first process of the profile, or the other process does not respond.
    void isFirst();
    /// Another process is running and was asked to show itself.
    void isSecond();
    /// Another process asked this one to show itself. `token` is the activation token that the desktop requires to
    /// bring a window to the front; it may be empty. So may `request`, which is what the other process was asked to open.
    void asked(const QByteArray &token, const QByteArray &request);

private:
    void listen();
    void answer();
    void ask();
    void retry();
    void giveUp();

    QString m_name;
    QByteArray m_request;
    Clock &m_clock;
    QLockFile m_lock;
    QLocalServer m_server;
    std::unique_ptr<QLocalSocket> m_socket;
    Clock::TimerHandle m_retry;
    Clock::TimerHandle m_limit;
};
