#include "http/AnnouncedLength.h"

#include "http/HttpStatus.h"

namespace {

constexpr int NoContent = 204;
constexpr int NotModified = 304;

bool neverHasABody(int status)
{
    return HttpStatus::isInterim(status) || status == NoContent || status == NotModified;
}

bool isNumber(const QByteArray &text)
{
    return !text.isEmpty() &&
           std::ranges::all_of(text, [](char digit) { return digit >= '0' && digit <= '9'; });
}

} // namespace

std::expected<std::optional<qint64>, TransportError::Kind>
announcedLength(const QNetworkReply &reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isInChunks = reply.hasRawHeader("Transfer-Encoding");
    if (neverHasABody(status) || isInChunks || !reply.hasRawHeader("Content-Length"))
        return std::nullopt;
    const QByteArray text = reply.rawHeader("Content-Length").trimmed();
    bool isInRange = false;
    const qint64 length = text.toLongLong(&isInRange);
    if (!isNumber(text) || !isInRange)
        return std::unexpected(TransportError::Kind::Broken);
    return length;
}
