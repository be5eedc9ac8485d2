#include "simulator/server/RawRequest.h"

namespace {

constexpr auto endOfHead = "\r\n\r\n";

RawRequest requestOf(const QByteArray &head)
{
    QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> words = lines.takeFirst().trimmed().split(' ');
    RawRequest request;
    request.method = words.value(0);
    request.target = words.value(1);
    for (const QByteArray &line : std::as_const(lines)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.emplaceBack(line.first(std::max<qsizetype>(colon, 0)),
                                    line.sliced(colon + 1).trimmed());
    }
    return request;
}

} // namespace

QByteArray RawRequest::header(const QByteArray &name) const
{
    const auto found = std::ranges::find_if(headers, [&](const auto &header) {
        return header.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == headers.end() ? QByteArray() : found->second;
}

QByteArray RawRequest::head() const
{
    QByteArray head = method + ' ' + target + '\n';
    for (const auto &[name, value] : headers)
        head += name + ": " + value + '\n';
    return head;
}

std::optional<RawRequest> takeRequest(QByteArray &arrived)
{
    const qsizetype end = arrived.indexOf(endOfHead);
    if (end < 0)
        return {};
    RawRequest request = requestOf(arrived.first(end));
    const qsizetype begin = end + qsizetype(qstrlen(endOfHead));
    const qsizetype length = request.header("Content-Length").toLongLong();
    if (arrived.size() < begin + length)
        return {};
    request.body = arrived.sliced(begin, length);
    arrived.remove(0, begin + length);
    return request;
}
