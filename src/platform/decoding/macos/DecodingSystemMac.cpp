#include "platform/decoding/DecodingSystem.h"

#include <QUuid>

#include <cstdint>
#include <fcntl.h>
#include <mach-o/dyld.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr rlim_t ProcessorSeconds = 120;
constexpr rlim_t OpenFiles = 16;

bool limit(int resource, rlim_t most)
{
    const rlimit limits{most, most};
    return ::setrlimit(resource, &limits) == 0;
}

} // namespace

QByteArray DecodingSystem::ownProgram()
{
    std::uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    QByteArray path(qsizetype(size), '\0');
    _NSGetExecutablePath(path.data(), &size);
    path.truncate(qsizetype(qstrlen(path.constData())));
    return path;
}

int DecodingSystem::anonymousFile(qint64 bytes)
{
    // Names have at most 31 characters. The system allows only one change of the size, which is this one.
    const QByteArray name = "/vmd" + QUuid::createUuid().toByteArray(QUuid::Id128).first(24);
    const int file = ::shm_open(name.constData(), O_RDWR | O_CREAT | O_EXCL, 0600);
    if (file < 0)
        return -1;
    ::shm_unlink(name.constData());
    ::fcntl(file, F_SETFD, FD_CLOEXEC);
    if (::ftruncate(file, bytes) == 0)
        return file;
    ::close(file);
    return -1;
}

bool DecodingSystem::connectedSockets(int (&ends)[2])
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0)
        return false;
    for (const int end : ends) {
        const int on = 1;
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::setsockopt(end, SOL_SOCKET, SO_NOSIGPIPE, &on, sizeof on);
    }
    return true;
}

int DecodingSystem::quietSendFlag()
{
    return 0;
}

void DecodingSystem::closeDescriptorsFrom(int first)
{
    const int most = ::getdtablesize();
    for (int file = first; file < most; ++file)
        ::close(file);
}

// The helper ends when its connection is closed. One that is decoding then is ended by its limit of processor time.
void DecodingSystem::endWithParent() {}

// The system does not enforce RLIMIT_AS, and its sandboxes can only be declared in the signature of a program, so
// opening files and connections is not prevented here.
bool DecodingSystem::confine()
{
    return limit(RLIMIT_CORE, 0) && limit(RLIMIT_FSIZE, 0) && limit(RLIMIT_NPROC, 0) &&
           limit(RLIMIT_NOFILE, OpenFiles) && limit(RLIMIT_CPU, ProcessorSeconds);
}
