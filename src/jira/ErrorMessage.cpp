#include "jira/ErrorMessage.h"

#include "jira/wire/JiraErrorDTO.h"
#include "jira/wire/WireDecoding.h"

#include <simdjson.h>

namespace {

constexpr qsizetype MaximumBytes = 300;

} // namespace

QString errorMessage(const QByteArray &body)
{
    if (const auto error = decodeWire<JiraErrorDTO>(body))
        return error->text();
    const QByteArray start = body.left(MaximumBytes);
    const bool isText = simdjson::validate_utf8(start.constData(), size_t(start.size()));
    const bool isPage = start.startsWith('<');
    return isText && !isPage ? QString::fromUtf8(start) : QString();
}
