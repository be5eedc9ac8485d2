#include "platform/decoding/helper/PictureFormat.h"

#include "platform/decoding/helper/PdfReader.h"
#include "platform/decoding/helper/PictureDecoding.h"

#include <QBuffer>
#include <QImageReader>
#include <QSemaphore>
#include <QThreadPool>

namespace {

/// The part of a file in which the root element of a drawing must begin.
constexpr qsizetype SvgProbe = 4096;
/// The maximum memory for one picture, in MB.
constexpr int MostMegabytes = 128;

bool isSvg(const QByteArray &bytes)
{
    QByteArray head = bytes.first(std::min(bytes.size(), SvgProbe));
    if (head.startsWith("\xef\xbb\xbf"))
        head.remove(0, 3);
    return head.trimmed().startsWith('<') && head.contains("<svg");
}

/// Qt scales large pictures on this pool and waits for it, so its thread must exist before none can be started.
void startPool()
{
    QThreadPool *pool = QThreadPool::globalInstance();
    pool->setMaxThreadCount(1);
    pool->setExpiryTimeout(-1);
    // Waiting for the pool would end its thread.
    QSemaphore isRunning;
    pool->start([&isRunning] { isRunning.release(); });
    isRunning.acquire();
}

} // namespace

PictureFormat pictureFormatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return PictureFormat::Png;
    if (bytes.startsWith("\xff\xd8\xff"))
        return PictureFormat::Jpeg;
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return PictureFormat::Gif;
    if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP")
        return PictureFormat::WebP;
    return isSvg(bytes) ? PictureFormat::Svg : PictureFormat::None;
}

QByteArray decoderOf(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Png:
        return "png";
    case PictureFormat::Jpeg:
        return "jpeg";
    case PictureFormat::Gif:
        return "gif";
    case PictureFormat::WebP:
        return "webp";
    case PictureFormat::Svg:
    case PictureFormat::None:
        break;
    }
    return {};
}

void loadDecoders()
{
    QImageReader::setAllocationLimit(MostMegabytes);
    for (const auto format :
         {PictureFormat::Png, PictureFormat::Jpeg, PictureFormat::Gif, PictureFormat::WebP}) {
        QBuffer empty;
        empty.open(QIODevice::ReadOnly);
        QImageReader(&empty, decoderOf(format)).canRead();
    }
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                               "<path d='M0 0h9v9z' stroke='#f00'/></svg>";
    decodedPicture(drawing, {.bound = {9, 9}, .mostPixels = 81});
    PdfReader(QByteArray("%PDF-1.4\n")).status();
    startPool();
}
