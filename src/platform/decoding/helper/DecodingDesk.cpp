#include "platform/decoding/helper/DecodingDesk.h"

#include <cstring>

namespace {

/// The largest file that is read, in bytes. Not every system limits the memory of a helper, which on Linux cannot
/// contain more.
constexpr qint64 LargestInput = qint64(768) * 1024 * 1024;

/// Writes the pixels of an image without gaps, and tells their form.
void write(const QImage &image, char *output, DecodingAnswer &answer)
{
    answer.pixels = image.size();
    answer.hasAlpha = image.hasAlphaChannel();
    const QImage pixels = image.convertToFormat(
        answer.hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const qsizetype line = qsizetype(pixels.width()) * 4;
    for (int y = 0; y < pixels.height(); ++y)
        std::memcpy(output + y * line, pixels.constScanLine(y), size_t(line));
}

DecodingAnswer answerOf(const ReadPicture &picture, char *output)
{
    DecodingAnswer answer{.status = picture.status,
                          .isAnimated = picture.isAnimated,
                          .whole = picture.whole,
                          .delay = picture.delay};
    if (picture.status == DecodingStatus::Done)
        write(picture.image, output, answer);
    return answer;
}

} // namespace

void DecodingDesk::open(const DecodingRequest &request, int input)
{
    if (m_source == request.source && m_content.data())
        return;
    m_frames.reset();
    m_pdf.reset();
    m_source = request.source;
    m_content = request.inputBytes <= LargestInput
                    ? Mapping(input, request.inputBytes, Mapping::Access::Read)
                    : Mapping();
}

DecodingAnswer DecodingDesk::answer(const DecodingRequest &request, int input, int output)
{
    open(request, input);
    const Mapping result(output, outputBytesOf(request), Mapping::Access::Write);
    if (!m_content.data() || !result.data())
        return {};
    switch (request.kind) {
    case DecodingKind::Picture:
        return picture(request, result.data());
    case DecodingKind::Frame:
        return frame(request, result.data());
    case DecodingKind::Pages:
        return pages(result.data());
    case DecodingKind::Page:
        return page(request, result.data());
    }
    return {};
}

DecodingAnswer DecodingDesk::picture(const DecodingRequest &request, char *output)
{
    const PictureBounds bounds{.bound = request.bound, .mostPixels = request.mostPixels};
    return answerOf(decodedPicture(m_content.bytes(), bounds), output);
}

DecodingAnswer DecodingDesk::frame(const DecodingRequest &request, char *output)
{
    if (!m_frames)
        m_frames = std::make_unique<FrameReader>(m_content.bytes(), request.mostPixels);
    return answerOf(m_frames->frame(request.index), output);
}

PdfReader &DecodingDesk::pdf()
{
    if (!m_pdf)
        m_pdf = std::make_unique<PdfReader>(m_content.bytes());
    return *m_pdf;
}

DecodingAnswer DecodingDesk::pages(char *output)
{
    DecodingAnswer answer{.status = pdf().status()};
    if (answer.status != DecodingStatus::Done)
        return answer;
    const QByteArray sizes = encodedPages(pdf().pages());
    std::memcpy(output, sizes.constData(), size_t(sizes.size()));
    answer.pageCount = pdf().pageCount();
    return answer;
}

DecodingAnswer DecodingDesk::page(const DecodingRequest &request, char *output)
{
    const QImage image = pdf().page(request.index, request.bound);
    if (image.size() != request.bound)
        return {};
    DecodingAnswer answer{.status = DecodingStatus::Done, .pageCount = pdf().pageCount()};
    write(image, output, answer);
    return answer;
}
