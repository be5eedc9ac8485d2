#include "screens/attachments/preview/PictureReader.h"

#include "platform/Clock.h"
#include "screens/kit/images/SamplePictures.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A GIF of two frames of one pixel, red and green, which are shown for 50 ms and for no time.
QByteArray twoFrames()
{
    const QByteArray head = QByteArray::fromHex("474946383961"
                                                "01000100800000"
                                                "ff000000ff00");
    const auto frame = [](const char *delay, const char *code) {
        return QByteArray::fromHex("21f90400") + QByteArray::fromHex(delay) +
               QByteArray::fromHex("0000"
                                   "2c00000000010001000002") +
               QByteArray::fromHex(code) + QByteArray::fromHex("00");
    };
    return head + frame("0500", "024401") + frame("0000", "024c01") + QByteArray::fromHex("3b");
}

/// A GIF whose header and whose only frame claim to be a square with this side.
QByteArray gifWithAFrameOf(quint16 side)
{
    QByteArray bytes = SamplePictures::gifClaiming({side, side});
    // The frame begins after the header and a table of two colours, with its mark and its place.
    constexpr qsizetype Frame = 13 + 6;
    for (const qsizetype at : {Frame + 5, Frame + 7})
        qToLittleEndian(side, bytes.data() + at);
    return bytes;
}

class PictureReading : public testing::Test
{
protected:
    using Reader = std::shared_ptr<PictureReader>;

    QTemporaryDir folder;

    Reader readerOf(const QByteArray &content) const
    {
        QFile file(folder.filePath(u"image"_s));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
        file.close();
        return std::make_shared<PictureReader>(file.fileName());
    }
    static PictureFrame nextOf(const Reader &reader)
    {
        const TaskResult frame(PictureReader::next(reader));
        EXPECT_TRUE(runUntil([&] { return frame.isDone(); }));
        return frame.isDone() ? frame.value() : PictureFrame();
    }
    PictureFrame firstOf(const QByteArray &content) const { return nextOf(readerOf(content)); }
};

} // namespace

TEST_F(PictureReading, APictureIsDecodedWithItsSize)
{
    const PictureFrame frame = firstOf(SamplePictures::picture("png", {40, 30}));
    EXPECT_EQ(frame.problem, u""_s);
    EXPECT_EQ(frame.whole, QSize(40, 30));
    EXPECT_FALSE(frame.isAnimated);
    ASSERT_EQ(frame.levels.size(), 1);
    EXPECT_EQ(frame.levels.first().pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(PictureReading, ALargePictureHasSmallerLevels)
{
    const PictureFrame frame = firstOf(SamplePictures::picture("png", {2100, 1100}));
    ASSERT_EQ(frame.levels.size(), 3);
    EXPECT_EQ(frame.levels[1].size(), QSize(1050, 550));
    EXPECT_EQ(frame.levels[2].size(), QSize(525, 275));
}

TEST_F(PictureReading, APictureOf60000By60000IsToldAndNotDecoded)
{
    const QString text =
        u"Cette image est trop grande pour être affichée (60\u202F000 × 60\u202F000 pixels)."_s;
    for (const auto &bytes :
         {SamplePictures::pngClaiming({60'000, 60'000}), gifWithAFrameOf(60'000)}) {
        const PictureFrame frame = firstOf(bytes);
        EXPECT_EQ(frame.problem, text) << frame.problem.toStdString();
        EXPECT_TRUE(frame.isNull());
    }
}

TEST_F(PictureReading, AGifWhoseHeaderAloneClaimsToBeLargeIsNotDecoded)
{
    EXPECT_TRUE(firstOf(SamplePictures::gifClaiming({60'000, 60'000})).isNull());
}

TEST_F(PictureReading, AnAnimationMovesAndBeginsAgain)
{
    const Reader reader = readerOf(twoFrames());
    QList<QColor> colours;
    QList<int> delays;
    for (int i = 0; i < 3; ++i) {
        const PictureFrame frame = nextOf(reader);
        ASSERT_FALSE(frame.isNull()) << i;
        EXPECT_TRUE(frame.isAnimated);
        colours += frame.levels.first().pixelColor(0, 0);
        delays += int(frame.delay.count());
    }
    EXPECT_EQ(colours, QList<QColor>({Qt::red, Qt::green, Qt::red}));
    EXPECT_EQ(delays, QList<int>({50, 100, 50}))
        << "a frame without a time is shown as browsers do";
}

TEST_F(PictureReading, SomethingElseIsToldAndNotDecoded)
{
    const QString unknown = u"Cette image est endommagée ou d'un format inconnu."_s;
    EXPECT_EQ(firstOf("<svg xmlns='http://www.w3.org/2000/svg'/>").problem, unknown);
    EXPECT_EQ(firstOf("").problem, unknown);
    EXPECT_EQ(firstOf(SamplePictures::picture("bmp")).problem, unknown);
}

TEST_F(PictureReading, APictureWhoseEndIsMissingIsShownAsFarAsItIsThere)
{
    const QByteArray whole = SamplePictures::picture("png", {300, 300});
    const PictureFrame frame = firstOf(whole.first(whole.size() - 20));
    EXPECT_EQ(frame.problem, u""_s);
    EXPECT_FALSE(frame.isNull());
}

TEST_F(PictureReading, APictureThatHasVanishedIsTold)
{
    const auto reader = std::make_shared<PictureReader>(folder.filePath(u"absente"_s));
    EXPECT_EQ(nextOf(reader).problem, u"Le fichier n'est plus là."_s);
}

TEST_F(PictureReading, WithoutAHelperAPictureIsToldAsDamaged)
{
    SystemClock clock;
    Decoders none({}, clock);
    QFile file(folder.filePath(u"image"_s));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(SamplePictures::picture("png"));
    file.close();
    EXPECT_EQ(nextOf(std::make_shared<PictureReader>(file.fileName(), none)).problem,
              u"Cette image est endommagée ou d'un format inconnu."_s);
}

TEST_F(PictureReading, HostilePicturesAreRefusedOrDecodedWithinTheLimit)
{
    for (const QByteArray &bytes : SamplePictures::hostile()) {
        const PictureFrame frame = firstOf(bytes);
        EXPECT_EQ(frame.problem.isEmpty(), !frame.isNull());
        for (const QImage &level : frame.levels)
            ASSERT_LE(qint64(level.width()) * level.height(), MaximumPixels);
    }
}
