/// Reads what a helper that decodes pictures answers: a byte that chooses the request, the answer, and sizes of pages. The
/// whole input is also read as a request.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "platform/decoding/DecodingProtocol.h"

#include <array>

namespace {

const std::array Requests{
    DecodingRequest{.kind = DecodingKind::Picture, .inputBytes = 1, .bound = {48, 32}},
    DecodingRequest{.kind = DecodingKind::Frame, .inputBytes = 1, .mostPixels = 5000},
    DecodingRequest{.kind = DecodingKind::Pages, .inputBytes = 1},
    DecodingRequest{.kind = DecodingKind::Page, .inputBytes = 1, .bound = {60, 80}}};

void checkAnswer(const DecodingAnswer &answer, const DecodingRequest &request)
{
    promise(answer.delay >= 0 && answer.pageCount >= 0 && answer.pageCount <= 1'000'000,
            "numbers are bounded");
    // The sizes of pages are no pixels.
    if (answer.status != DecodingStatus::Done || request.kind == DecodingKind::Pages)
        return;
    const qint64 needed = 4 * qint64(answer.pixels.width()) * answer.pixels.height();
    promise(needed > 0 && needed <= outputBytesOf(request),
            "the pixels are within the file for the result");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    if (bytes.isEmpty())
        return 0;
    const DecodingRequest &request = Requests.at(quint8(bytes.front()) % Requests.size());
    if (const auto answer = answerIn(bytes.mid(1, AnswerBytes), request))
        checkAnswer(*answer, request);
    for (const QSizeF page : pagesIn(bytes.mid(1 + AnswerBytes)))
        promise(page.isEmpty() || (page.width() <= 1e6 && page.height() <= 1e6),
                "a page has a possible size or none");
    const auto order = requestIn(bytes);
    promise(!order || outputBytesOf(*order) > 0, "every request has a result");
    return 0;
}
