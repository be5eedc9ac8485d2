// Measures how long 200 avatars take when they are decoded in this process and in helper processes. Times are those of a
// clock on the wall, because the helpers' processor time is not that of this process.
//
// Usage: decoding_ratio [<program whose helpers are measured; this one without it>]

#include "platform/Clock.h"
#include "platform/decoding/Decoders.h"
#include "platform/decoding/DecodingSystem.h"
#include "platform/decoding/helper/DecodeMain.h"
#include "platform/decoding/helper/PictureDecoding.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCoro/QCoroTask>
#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int Avatars = 200;
constexpr int Runs = 15;
constexpr QSize Bound(2048, 2048);
constexpr qint64 MostPixels = qint64(24) * 1024 * 1024;

QList<QByteArray> avatars(int side)
{
    QList<QByteArray> files;
    for (int i = 0; i < Avatars; ++i) {
        QImage image(side, side, QImage::Format_ARGB32);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x)
                image.setPixelColor(x, y, QColor::fromHsv((x * 7 + i) % 360, 200, (y * 5) % 256));
        }
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "png");
        files += bytes;
    }
    return files;
}

/// The median of the times of some runs, in milliseconds.
double median(int runs, const std::function<void()> &work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(times);
    return times.at(times.size() / 2);
}

void decodeHere(const QList<QByteArray> &files)
{
    for (const QByteArray &file : files)
        decodedPicture(file, {.bound = Bound, .mostPixels = MostPixels});
}

QCoro::Task<> decodeThere(Decoders *decoders, QList<QByteArray> files)
{
    std::vector<QCoro::Task<Decoded>> tasks;
    for (const QByteArray &file : files)
        tasks.push_back(decoders->decode(
            DecodingInput::bytes(file),
            {.kind = DecodingKind::Picture, .bound = Bound, .mostPixels = MostPixels}));
    int failed = 0;
    for (auto &task : tasks)
        failed += (co_await task).status == DecodingStatus::Done ? 0 : 1;
    if (failed > 0)
        std::printf("%d of %lld failed\n", failed, qlonglong(files.size()));
}

void compare(int side, const QByteArray &program)
{
    const QList<QByteArray> files = avatars(side);
    SystemClock clock;
    Decoders decoders({program, {DecodingOption}}, clock);
    const auto there = [&] { QCoro::waitFor(decodeThere(&decoders, files)); };
    const auto first = [&] { QCoro::waitFor(decodeThere(&decoders, files.first(10))); };
    const double start = median(5, [&] {
        decoders.endHelpers();
        first();
    });
    const double ten = median(Runs, first);
    const double here = median(Runs, [&] { decodeHere(files); });
    const double through = median(Runs, there);
    std::printf("%4d %12.1f %12.1f %8.2f %12.1f %12.1f\n", side, here, through, through / here, ten,
                start);
}

} // namespace

int main(int argc, char **argv)
{
    if (const auto code = decodeIfAsked(argc, argv))
        return *code;
    const QCoreApplication application(argc, argv);
    std::printf("Decoding %d avatars: milliseconds (median)\n", Avatars);
    std::printf("%4s %12s %12s %8s %12s %12s\n", "side", "in process", "by helpers", "ratio",
                "10, running", "10, started");
    for (const int side : {24, 48, 128})
        compare(side, argc > 1 ? QByteArray(argv[1]) : DecodingSystem::ownProgram());
    return 0;
}
