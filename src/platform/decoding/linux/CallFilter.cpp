#include "platform/decoding/linux/CallFilter.h"

#include <array>
#include <cerrno>
#include <memory>
#include <seccomp.h>
#include <sys/mman.h>

namespace {

/// Memory, waiting, the time, the end, and messages over descriptors that are open. Nothing here opens, connects,
/// starts or signals anything.
constexpr std::array Allowed{
    SCMP_SYS(brk),           SCMP_SYS(munmap),          SCMP_SYS(mremap),
    SCMP_SYS(madvise),       SCMP_SYS(futex),           SCMP_SYS(sched_yield),
    SCMP_SYS(clock_gettime), SCMP_SYS(gettimeofday),    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(nanosleep),     SCMP_SYS(getrandom),       SCMP_SYS(sched_getaffinity),
    SCMP_SYS(getpid),        SCMP_SYS(gettid),          SCMP_SYS(read),
    SCMP_SYS(recvmsg),       SCMP_SYS(sendto),          SCMP_SYS(close),
    SCMP_SYS(rt_sigaction),  SCMP_SYS(rt_sigreturn),    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(sigaltstack),   SCMP_SYS(restart_syscall), SCMP_SYS(exit),
    SCMP_SYS(exit_group)};

/// Allowed only for memory that is not executed.
constexpr std::array AllowedWithoutExecution{SCMP_SYS(mmap), SCMP_SYS(mprotect)};

struct Release
{
    void operator()(void *filter) const { seccomp_release(filter); }
};

} // namespace

bool filterCalls()
{
    const std::unique_ptr<void, Release> filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)));
    // The filter holds for the threads that run already too.
    if (!filter || seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) != 0)
        return false;
    for (const int call : Allowed) {
        if (seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0) != 0)
            return false;
    }
    for (const int call : AllowedWithoutExecution) {
        const scmp_arg_cmp notExecuted{2, SCMP_CMP_MASKED_EQ, PROT_EXEC, 0};
        if (seccomp_rule_add_array(filter.get(), SCMP_ACT_ALLOW, call, 1, &notExecuted) != 0)
            return false;
    }
    return seccomp_load(filter.get()) == 0;
}
