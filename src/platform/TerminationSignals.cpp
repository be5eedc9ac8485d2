#include "platform/TerminationSignals.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int caught[] = {SIGTERM, SIGINT, SIGHUP};

// A signal handler may interrupt any code. It only writes to this descriptor, and the event loop reads what was
// written.
int writing = -1;
int reading = -1;

void tell(int)
{
    const int saved = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(writing, &byte, 1);
    errno = saved;
}

int openedPair()
{
    int ends[2] = {-1, -1};
    ::socketpair(AF_UNIX, SOCK_STREAM, 0, ends);
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    writing = ends[0];
    reading = ends[1];
    return reading;
}

void listenFor(int signal)
{
    struct sigaction before;
    ::sigaction(signal, nullptr, &before);
    // The parent process may have chosen to ignore this signal so that this process survives it.
    if (before.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = tell;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    ::sigaction(signal, &action, nullptr);
}

void forget(int signal)
{
    struct sigaction now;
    ::sigaction(signal, nullptr, &now);
    if (now.sa_handler == tell)
        ::signal(signal, SIG_DFL);
}

} // namespace

TerminationSignals::TerminationSignals() : m_notifier(openedPair(), QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (::read(reading, &byte, 1) == 1)
            Q_EMIT asked();
    });
    for (const int signal : caught)
        listenFor(signal);
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : caught)
        forget(signal);
    m_notifier.setEnabled(false);
    ::close(writing);
    ::close(reading);
}
