#include "screens/attachments/preview/PictureReader.h"

#include "async/OffThread.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The smallest side of a level.
constexpr int SmallestSide = 256;
/// Frames with less are shown for `UsualDelay`, as in browsers, because such animations were made for slow machines.
constexpr std::chrono::milliseconds ShortestDelay(20);
constexpr std::chrono::milliseconds UsualDelay(100);

QList<QImage> levelsOf(QImage image)
{
    QList<QImage> levels{image};
    while (std::min(image.width(), image.height()) >= 2 * SmallestSide) {
        image = image.scaled(image.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        levels += image;
    }
    return levels;
}

QString problemOf(const Decoded &result)
{
    if (result.status == DecodingStatus::TooLarge)
        return tooLargePictureText(result.whole);
    // The size is known if the beginning of the file could be read.
    return result.whole.isEmpty()
               ? u"Cette image est endommagée ou d'un format inconnu."_s
               : u"Cette image est endommagée ou trop grande pour être affichée."_s;
}

std::chrono::milliseconds delayOf(const Decoded &result)
{
    return result.isAnimated && result.delay < ShortestDelay ? UsualDelay : result.delay;
}

QCoro::Task<DecodingInput> opened(QString path)
{
    // A file on another machine may take long to open.
    auto open = [path] { return DecodingInput::file(path); };
    co_return co_await offThread(std::move(open));
}

QCoro::Task<PictureFrame> frameOf(Decoded result)
{
    PictureFrame frame{.levels = {},
                       .delay = delayOf(result),
                       .whole = result.whole,
                       .isAnimated = result.isAnimated,
                       .problem = {}};
    if (result.image.isNull()) {
        frame.problem = problemOf(result);
        co_return frame;
    }
    auto scale = [image = result.image] { return levelsOf(image); };
    frame.levels = co_await offThread(std::move(scale));
    co_return frame;
}

} // namespace

QString tooLargePictureText(QSize size)
{
    const QLocale french(QLocale::French, QLocale::France);
    return u"Cette image est trop grande pour être affichée (%1 × %2 pixels)."_s.arg(
        french.toString(size.width()), french.toString(size.height()));
}

QCoro::Task<PictureFrame> PictureReader::next(std::shared_ptr<PictureReader> reader)
{
    while (true) {
        if (reader->m_input.isNull())
            reader->m_input = co_await opened(reader->m_path);
        if (reader->m_input.isNull())
            co_return PictureFrame{.levels = {}, .problem = u"Le fichier n'est plus là."_s};
        const DecodingRequest request{
            .kind = DecodingKind::Frame, .index = reader->m_index++, .mostPixels = MaximumPixels};
        const Decoded result = co_await reader->m_decoders.decode(reader->m_input, request);
        if (result.status != DecodingStatus::End || request.index == 0)
            co_return co_await frameOf(result);
        reader->m_index = 0;
        reader->m_input = {};
    }
}
