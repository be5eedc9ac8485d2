/// Reads the feed of the updater.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "update/ReleaseInfo.h"
#include "update/ReleaseOrder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto release = ReleaseInfo::decoded(bytesOf(data, size));
    if (!release)
        return 0;
    const auto again = ReleaseInfo::decoded(release->encoded());
    promise(again && *again == *release, "what is written is read again");
    promise(ReleaseOrder::numericCompare(release->version, release->version) == 0,
            "a version is equal to itself");
    promise(ReleaseOrder::numericCompare(release->version, release->build) ==
                -ReleaseOrder::numericCompare(release->build, release->version),
            "an order has two directions");
    promise(!ReleaseOrder::isNewer(*release, release->version, release->build),
            "a release is not newer than itself");
    return 0;
}
