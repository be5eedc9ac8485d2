/// Decodes documents and other JSON; whatever was decoded must be unchanged after encoding and decoding.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "richtext/ADFCoding.h"

namespace {

void checkNode(const QByteArray &json)
{
    const auto node = ADFCoding::decodeNode(json);
    if (!node)
        return;
    const QByteArray written = ADFCoding::encode(*node);
    const auto again = ADFCoding::decodeNode(written);
    promise(again && *again == *node, "a document survives writing and reading");
    promise(ADFCoding::encode(*again) == written, "a document is always written the same");
    promise(!ADFCoding::jsonValueFrom(*node).isNull(), "a document that was read can be sent");
}

void checkValue(const QByteArray &json)
{
    const auto value = ADFCoding::decodeValue(json);
    if (!value)
        return;
    const auto again = ADFCoding::decodeValue(ADFCoding::encode(*value));
    promise(again && *again == *value, "a value survives writing and reading");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray json = bytesOf(data, size);
    checkNode(json);
    checkValue(json);
    return 0;
}
