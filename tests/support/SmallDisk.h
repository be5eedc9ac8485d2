#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it exists, no file of this process can grow beyond the size, as on a full disk.
class SmallDisk
{
public:
    explicit SmallDisk(rlim_t bytes) : m_before(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        rlimit limit = m_limit;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_before);
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

private:
    rlimit m_limit{};
    void (*m_before)(int);
};
