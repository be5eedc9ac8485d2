#include "platform/bundles/swap/SwapFolders.h"

#include <cerrno>
#include <cstdio>
#include <string>

#ifdef __linux__
#include <fcntl.h>
#endif

namespace {

bool isUnsupported(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

int inTurn(const char *a, const char *b)
{
    const std::string aside = std::string(a) + ".old";
    if (std::rename(b, aside.c_str()) != 0)
        return errno;
    if (std::rename(a, b) != 0) {
        const int error = errno;
        std::rename(aside.c_str(), b);
        return error;
    }
    return std::rename(aside.c_str(), a) == 0 ? 0 : errno;
}

} // namespace

int SwapFolders::atOnce(const char *a, const char *b)
{
#ifdef __linux__
    return ::renameat2(AT_FDCWD, a, AT_FDCWD, b, RENAME_EXCHANGE) == 0 ? 0 : errno;
#else
    static_cast<void>(a);
    static_cast<void>(b);
    return ENOSYS;
#endif
}

int SwapFolders::exchanged(const char *a, const char *b, Exchange exchange)
{
    const int error = exchange(a, b);
    return isUnsupported(error) ? inTurn(a, b) : error;
}
