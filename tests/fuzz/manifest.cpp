/// Reads the manifest of a bundle.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "platform/bundles/BundleManifest.h"
#include "platform/bundles/BundlePath.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = bytesOf(data, size);
    const auto manifest = BundleManifest::parsed(text);
    if (!manifest)
        return 0;
    promise(manifest->text() == text, "a manifest has one text");
    promise(std::ranges::all_of(manifest->files,
                                [](const BundleFile &file) {
                                    return BundlePath::faultOf(file.path) ==
                                               BundlePath::Fault::None &&
                                           !file.path.split('/').contains("..") &&
                                           !file.path.startsWith('/');
                                }),
            "every path is inside the bundle");
    return 0;
}
