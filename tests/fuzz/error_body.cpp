/// Reads the body of an error response.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "jira/ErrorMessage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray body = bytesOf(data, size);
    const QString message = errorMessage(body);
    const bool isPage = body.startsWith('<');
    promise(!isPage || message.isEmpty(), "a page is no message");
    promise(message.toUtf8().size() <= std::max<qsizetype>(300, 4 * body.size()),
            "a message is no longer than what was sent");
    return 0;
}
