#include "simulator/server/RawAnswer.h"

namespace {

QByteArray headOf(int status, const RawAnswer::Headers &headers)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + " Status\r\n";
    for (const auto &[name, value] : headers)
        head += name + ": " + value + "\r\n";
    return head + "\r\n";
}

bool announcesLength(const RawAnswer::Headers &headers)
{
    return std::ranges::any_of(headers, [](const auto &header) {
        return header.first == "Content-Length" || header.first == "Transfer-Encoding";
    });
}

} // namespace

RawAnswer RawAnswer::http(int status, const QByteArray &body, const Headers &headers)
{
    Headers all = headers;
    if (!announcesLength(headers))
        all.emplaceBack("Content-Length", QByteArray::number(body.size()));
    return {headOf(status, all) + body};
}

RawAnswer RawAnswer::json(const QByteArray &body, int status)
{
    return http(status, body, {{"Content-Type", "application/json;charset=UTF-8"}});
}

RawAnswer RawAnswer::html(const QByteArray &body, int status)
{
    return http(status, body, {{"Content-Type", "text/html;charset=UTF-8"}});
}

RawAnswer RawAnswer::redirect(const QByteArray &location, int status)
{
    return http(status, {}, {{"Location", location}});
}

RawAnswer RawAnswer::large(qint64 announced, qint64 sent, const QByteArray &contentType)
{
    const Headers headers = {{"Content-Type", contentType},
                             {"Content-Length", QByteArray::number(announced)}};
    return {.bytes = headOf(200, headers), .ending = Ending::KeepOpen, .blanks = sent};
}

RawAnswer RawAnswer::largeOfUnknownLength(qint64 sent, const QByteArray &contentType)
{
    const QByteArray head = headOf(200, {{"Content-Type", contentType}});
    return {.bytes = head, .ending = Ending::Close, .blanks = sent};
}

RawAnswer RawAnswer::cut(qsizetype missing, Ending then) const
{
    return {bytes.chopped(std::min(missing, bytes.size())), then, blanks};
}

RawAnswer RawAnswer::withEnding(Ending then) const
{
    return {bytes, then, blanks};
}
