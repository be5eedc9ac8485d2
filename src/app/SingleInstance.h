#pragma once

#include "platform/Clock.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QObject>

#include <memory>

/// Lets one process of a profile run. The first answers those that come later, each of which asks it to show itself and
/// ends. A process that holds the profile but does not answer within two seconds counts as gone.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `profile` tells profiles apart; any text. The clock outlives it.
    SingleInstance(const QString &profile, Clock &clock);

    /// Finds out which process this is; one of the two signals below comes, now or soon.
    void start();

Q_SIGNALS:
    /// This is the first process of the profile, or the other does not answer.
    void isFirst();
    /// Another process runs, and was asked to show itself.
    void isSecond();
    /// Another process came and asks this one to show itself; `token` is what the desktop wants to see for a window to
    /// come forward, and may be empty.
    void asked(const QByteArray &token);

private:
    void listen();
    void answer();
    void ask();
    void retry();
    void giveUp();

    QString m_name;
    Clock &m_clock;
    QLockFile m_lock;
    QLocalServer m_server;
    std::unique_ptr<QLocalSocket> m_socket;
    Clock::TimerHandle m_retry;
    Clock::TimerHandle m_limit;
};
