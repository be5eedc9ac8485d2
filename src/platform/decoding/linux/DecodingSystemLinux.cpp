#include "platform/decoding/DecodingSystem.h"
#include "platform/decoding/linux/CallFilter.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// The memory for the pixels of the largest picture three times, its file, and what the decoders need themselves.
constexpr rlim_t DecodingMemory = rlim_t(768) * 1024 * 1024;
/// The helper ends itself earlier, between two pictures. This limit ends one that cannot.
constexpr rlim_t ProcessorSeconds = 120;
/// The connection, the standard streams, the two files of a request, and a few that Qt has opened before.
constexpr rlim_t OpenFiles = 16;

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VELMORA_ADDRESS_SANITIZER
#endif
#endif
#ifdef VELMORA_ADDRESS_SANITIZER
// The sanitizer reserves terabytes of addresses.
constexpr bool LimitsMemory = false;
#else
constexpr bool LimitsMemory = true;
#endif

bool limit(int resource, rlim_t most)
{
    const rlimit limits{most, most};
    return ::setrlimit(__rlimit_resource(resource), &limits) == 0;
}

/// The addresses that this process uses now, in bytes; 0 if that cannot be told.
rlim_t usedAddresses()
{
    std::ifstream file("/proc/self/statm");
    rlim_t pages = 0;
    file >> pages;
    return pages * rlim_t(::sysconf(_SC_PAGESIZE));
}

bool limitMemory()
{
    const rlim_t used = usedAddresses();
    return used > 0 && limit(RLIMIT_AS, used + DecodingMemory);
}

} // namespace

QByteArray DecodingSystem::ownProgram()
{
    // The kernel resolves this link to the file of the running program, even if its name belongs to another one now.
    return QByteArrayLiteral("/proc/self/exe");
}

int DecodingSystem::anonymousFile(qint64 bytes)
{
    const int file = ::memfd_create("velmora-decoding", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (file < 0)
        return -1;
    constexpr int Fixed = F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL;
    if (::ftruncate(file, bytes) == 0 && ::fcntl(file, F_ADD_SEALS, Fixed) == 0)
        return file;
    ::close(file);
    return -1;
}

bool DecodingSystem::connectedSockets(int (&ends)[2])
{
    return ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) == 0;
}

int DecodingSystem::quietSendFlag()
{
    return MSG_NOSIGNAL;
}

void DecodingSystem::closeDescriptorsFrom(int first)
{
    if (::close_range(unsigned(first), ~0U, 0) == 0)
        return;
    const long most = ::sysconf(_SC_OPEN_MAX);
    for (int file = first; file < most; ++file)
        ::close(file);
}

void DecodingSystem::endWithParent()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

bool DecodingSystem::confine()
{
    // No core file contains the picture, and no other program of the user attaches to this process.
    if (::prctl(PR_SET_DUMPABLE, 0) != 0 || ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return false;
    if (LimitsMemory && !limitMemory())
        return false;
    return limit(RLIMIT_CORE, 0) && limit(RLIMIT_FSIZE, 0) && limit(RLIMIT_NPROC, 0) &&
           limit(RLIMIT_NOFILE, OpenFiles) && limit(RLIMIT_CPU, ProcessorSeconds) && filterCalls();
}
