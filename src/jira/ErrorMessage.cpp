#include "jira/ErrorMessage.h"

#include "jira/wire/JiraErrorDTO.h"
#include "jira/wire/WireDecoding.h"

#include <simdjson.h>

namespace {

constexpr qsizetype MaximumBytes = 300;
/// The maximum length of a message that is shown, in code units. Jira's own are much shorter.
constexpr qsizetype MaximumLength = 1000;

QString shortened(const QString &text)
{
    if (text.size() <= MaximumLength)
        return text;
    const bool splitsPair = text[MaximumLength - 1].isHighSurrogate();
    return text.first(splitsPair ? MaximumLength - 1 : MaximumLength) + u'…';
}

} // namespace

QString errorMessage(const QByteArray &body)
{
    if (const auto error = decodeWire<JiraErrorDTO>(body))
        return shortened(error->text());
    const QByteArray start = body.left(MaximumBytes);
    const bool isText = simdjson::validate_utf8(start.constData(), size_t(start.size()));
    const bool isPage = start.startsWith('<');
    return isText && !isPage ? QString::fromUtf8(start) : QString();
}
