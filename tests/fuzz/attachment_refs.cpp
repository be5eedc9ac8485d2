/// Searches arbitrary HTML for attachments.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "richtext/AttachmentRefs.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString html = textOf(data, size);
    QStringList ids = AttachmentRefs::ids(html);
    for (const QString &id : std::as_const(ids)) {
        promise(!id.isEmpty() && std::ranges::all_of(id, [](QChar c) { return c.isDigit(); }),
                "an identifier is a number");
        promise(html.contains(id), "an identifier comes from the text");
    }
    promise(ids.removeDuplicates() == 0, "each identifier comes once");
    return 0;
}
