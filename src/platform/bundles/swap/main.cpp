/// Exchanges two folders: velmora-swap <a> <b>. It is part of the bundle, because the tools of Debian 12 cannot do that.
#include "platform/bundles/swap/SwapFolders.h"

#include <cstdio>
#include <cstring>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("Usage: velmora-swap <folder> <folder>\n", stderr);
        return 2;
    }
    const int error = SwapFolders::exchanged(argv[1], argv[2], SwapFolders::atOnce);
    if (error != 0)
        std::fprintf(stderr, "velmora-swap: %s\n", std::strerror(error));
    return error == 0 ? 0 : 1;
}
