#include "platform/decoding/DecodersFixture.h"

#include "platform/decoding/DecodingSystem.h"
#include "screens/kit/images/SamplePictures.h"
#include "support/RunUntil.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

DecodingProgram DecodersFixture::ownProgram()
{
    return {.path = DecodingSystem::ownProgram(), .arguments = {DecodingOption}};
}

DecodingRequest DecodersFixture::pictureIn(QSize bound)
{
    return {.kind = DecodingKind::Picture, .bound = bound, .mostPixels = MostPixels};
}

DecodingRequest DecodersFixture::frameAt(int index)
{
    return {.kind = DecodingKind::Frame, .index = index, .mostPixels = MostPixels};
}

DecodingRequest DecodersFixture::pageAt(int index, QSize size)
{
    return {.kind = DecodingKind::Page, .index = index, .bound = size};
}

Decoded DecodersFixture::resultOf(Decoders &decoders, const QByteArray &bytes,
                                  const DecodingRequest &request)
{
    return resultOf(decoders, DecodingInput::bytes(bytes), request);
}

Decoded DecodersFixture::resultOf(Decoders &decoders, const DecodingInput &input,
                                  const DecodingRequest &request)
{
    const TaskResult result(decoders.decode(input, request));
    EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
    return result.isDone() ? result.value() : Decoded();
}

QList<qint64> DecodersFixture::children()
{
    QList<qint64> found;
    const QDir threads(u"/proc/self/task"_s);
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(threads.filePath(thread + u"/children"_s));
        if (!file.open(QFile::ReadOnly))
            continue;
        for (const QByteArray &word : file.readAll().simplified().split(' ')) {
            if (!word.isEmpty())
                found += word.toLongLong();
        }
    }
    return found;
}

bool DecodersFixture::readsPictures(Decoders &decoders)
{
    const Decoded result =
        resultOf(decoders, SamplePictures::picture("png", {40, 30}), pictureIn({100, 100}));
    return result.image.size() == QSize(40, 30) && result.image.pixelColor(5, 5) == QColor(Qt::red);
}
