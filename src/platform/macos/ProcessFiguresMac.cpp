#include "platform/ProcessFigures.h"

#include <libproc.h>
#include <sys/time.h>
#include <unistd.h>

std::optional<std::chrono::milliseconds> ProcessFigures::age()
{
    proc_bsdinfo info{};
    timeval now{};
    if (proc_pidinfo(getpid(), PROC_PIDTBSDINFO, 0, &info, sizeof info) != sizeof info ||
        gettimeofday(&now, nullptr) != 0)
        return {};
    using namespace std::chrono;
    const auto start = seconds(info.pbi_start_tvsec) + microseconds(info.pbi_start_tvusec);
    return duration_cast<milliseconds>(seconds(now.tv_sec) + microseconds(now.tv_usec) - start);
}

std::optional<qint64> ProcessFigures::residentBytes()
{
    proc_taskinfo info{};
    if (proc_pidinfo(getpid(), PROC_PIDTASKINFO, 0, &info, sizeof info) != sizeof info)
        return {};
    return static_cast<qint64>(info.pti_resident_size);
}
