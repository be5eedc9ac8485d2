#include "platform/decoding/DecodingProtocol.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <cmath>

namespace {

/// "VMD" and the version of the protocol.
constexpr quint32 Mark = 0x564d4401;
constexpr qint64 BytesPerPixel = 4;
constexpr qint64 BytesPerPage = 2 * sizeof(double);
/// The maximum of all dimensions that are only told, and of delays in milliseconds.
constexpr int MaximumDimension = 1'000'000;
constexpr int MaximumDelay = 600'000;
constexpr qint64 MaximumPixels = qint64(MaximumDecodedSide) * MaximumDecodedSide;
/// The maximum size of a page, in points.
constexpr double MaximumPoints = 1e6;

qint64 areaOf(QSize size)
{
    return qint64(size.width()) * size.height();
}

bool isPossible(QSize size, int longest)
{
    return !size.isEmpty() && std::max(size.width(), size.height()) <= longest;
}

bool isKnown(DecodingKind kind)
{
    return kind >= DecodingKind::Picture && kind <= DecodingKind::Page;
}

bool hasBound(DecodingKind kind)
{
    return kind == DecodingKind::Picture || kind == DecodingKind::Page;
}

bool isPossible(const DecodingRequest &request)
{
    const bool fits = !hasBound(request.kind) || isPossible(request.bound, MaximumDecodedSide);
    return isKnown(request.kind) && fits && request.inputBytes > 0 && request.index >= 0 &&
           request.mostPixels >= 0 && request.mostPixels <= MaximumPixels &&
           outputBytesOf(request) > 0;
}

/// Whether the pixels of an answer may be the result of a request.
bool pixelsFit(const DecodingAnswer &answer, const DecodingRequest &request)
{
    const QSize size = answer.pixels;
    switch (request.kind) {
    case DecodingKind::Picture:
        return isPossible(size, MaximumDecodedSide) && size.width() <= request.bound.width() &&
               size.height() <= request.bound.height();
    case DecodingKind::Frame:
        return isPossible(size, MaximumDecodedSide) && areaOf(size) <= request.mostPixels &&
               isPossible(answer.whole, MaximumDimension);
    case DecodingKind::Page:
        return size == request.bound;
    case DecodingKind::Pages:
        return answer.pageCount > 0;
    }
    return false;
}

bool fits(const DecodingAnswer &answer, const DecodingRequest &request)
{
    if (answer.delay < 0 || answer.delay > MaximumDelay || answer.pageCount < 0 ||
        answer.pageCount > MaximumDimension)
        return false;
    switch (answer.status) {
    case DecodingStatus::Done:
        return pixelsFit(answer, request);
    case DecodingStatus::TooLarge:
        return isPossible(answer.whole, std::numeric_limits<int>::max());
    case DecodingStatus::End:
    case DecodingStatus::Unreadable:
    case DecodingStatus::Protected:
        return true;
    }
    return false;
}

} // namespace

QByteArray encoded(const DecodingRequest &request)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << Mark << quint32(request.kind) << request.source << request.inputBytes
           << qint64(request.mostPixels) << qint32(request.index) << qint32(request.bound.width())
           << qint32(request.bound.height()) << quint32(0);
    return bytes;
}

std::optional<DecodingRequest> requestIn(const QByteArray &bytes)
{
    if (bytes.size() != RequestBytes)
        return std::nullopt;
    DecodingRequest request;
    quint32 mark = 0;
    quint32 kind = 0;
    qint32 width = 0;
    qint32 height = 0;
    QDataStream stream(bytes);
    stream >> mark >> kind >> request.source >> request.inputBytes >> request.mostPixels >>
        request.index >> width >> height;
    if (mark != Mark || kind > quint32(DecodingKind::Page))
        return std::nullopt;
    request.kind = DecodingKind(kind);
    request.bound = {width, height};
    return isPossible(request) ? std::optional(request) : std::nullopt;
}

QByteArray encoded(const DecodingAnswer &answer)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << Mark << quint8(answer.status) << quint8(answer.isLast) << quint8(answer.isAnimated)
           << quint8(answer.hasAlpha) << qint32(answer.pixels.width())
           << qint32(answer.pixels.height()) << qint32(answer.whole.width())
           << qint32(answer.whole.height()) << qint32(answer.delay) << qint32(answer.pageCount)
           << quint32(0);
    return bytes;
}

std::optional<DecodingAnswer> answerIn(const QByteArray &bytes, const DecodingRequest &request)
{
    if (bytes.size() != AnswerBytes)
        return std::nullopt;
    quint32 mark = 0;
    quint8 status = 0;
    quint8 isLast = 0;
    quint8 isAnimated = 0;
    quint8 hasAlpha = 0;
    qint32 sides[4] = {};
    DecodingAnswer answer;
    QDataStream stream(bytes);
    stream >> mark >> status >> isLast >> isAnimated >> hasAlpha >> sides[0] >> sides[1] >>
        sides[2] >> sides[3] >> answer.delay >> answer.pageCount;
    if (mark != Mark || status > quint8(DecodingStatus::Protected))
        return std::nullopt;
    answer.status = DecodingStatus(status);
    answer.isLast = isLast != 0;
    answer.isAnimated = isAnimated != 0;
    answer.hasAlpha = hasAlpha != 0;
    answer.pixels = {sides[0], sides[1]};
    answer.whole = {sides[2], sides[3]};
    return fits(answer, request) ? std::optional(answer) : std::nullopt;
}

qint64 outputBytesOf(const DecodingRequest &request)
{
    switch (request.kind) {
    case DecodingKind::Frame:
        return request.mostPixels * BytesPerPixel;
    case DecodingKind::Pages:
        return MaximumDecodedPages * BytesPerPage;
    case DecodingKind::Picture:
    case DecodingKind::Page:
        return areaOf(request.bound) * BytesPerPixel;
    }
    return 0;
}

QByteArray encodedPages(const QList<QSizeF> &pages)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QSizeF page : pages)
        stream << page.width() << page.height();
    return bytes;
}

QList<QSizeF> pagesIn(const QByteArray &bytes)
{
    const auto possible = [](double side) {
        return std::isfinite(side) && side > 0 && side <= MaximumPoints;
    };
    QList<QSizeF> pages;
    QDataStream stream(bytes);
    for (qsizetype i = 0; i < bytes.size() / BytesPerPage; ++i) {
        double width = 0;
        double height = 0;
        stream >> width >> height;
        pages += possible(width) && possible(height) ? QSizeF(width, height) : QSizeF();
    }
    return pages;
}
