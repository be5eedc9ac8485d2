#include "screens/attachments/preview/PictureReader.h"

#include "screens/kit/images/SamplePictures.h"

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
    QTemporaryDir folder;

    PictureReader readerOf(const QByteArray &content) const
    {
        QFile file(folder.filePath(u"image"_s));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
        file.close();
        return PictureReader(file.fileName());
    }
};

} // namespace

TEST_F(PictureReading, APictureIsDecodedWithItsSize)
{
    auto reader = readerOf(SamplePictures::picture("png", {40, 30}));
    ASSERT_EQ(reader.problem(), u""_s);
    EXPECT_EQ(reader.size(), QSize(40, 30));
    EXPECT_FALSE(reader.isAnimated());
    const PictureFrame frame = reader.next();
    ASSERT_EQ(frame.levels.size(), 1);
    EXPECT_EQ(frame.levels.first().pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(PictureReading, ALargePictureHasSmallerLevels)
{
    auto reader = readerOf(SamplePictures::picture("png", {2100, 1100}));
    ASSERT_EQ(reader.problem(), u""_s);
    const PictureFrame frame = reader.next();
    ASSERT_EQ(frame.levels.size(), 3);
    EXPECT_EQ(frame.levels[1].size(), QSize(1050, 550));
    EXPECT_EQ(frame.levels[2].size(), QSize(525, 275));
}

TEST_F(PictureReading, APictureOf60000By60000IsToldAndNotDecoded)
{
    auto png = readerOf(SamplePictures::pngClaiming({60'000, 60'000}));
    const QString text =
        u"Cette image est trop grande pour être affichée (60\u202F000 × 60\u202F000 pixels)."_s;
    EXPECT_EQ(png.problem(), text) << png.problem().toStdString();
    EXPECT_EQ(readerOf(gifWithAFrameOf(60'000)).problem(), text);
}

TEST_F(PictureReading, AGifWhoseHeaderAloneClaimsToBeLargeIsNotDecoded)
{
    EXPECT_TRUE(readerOf(SamplePictures::gifClaiming({60'000, 60'000})).next().isNull());
}

TEST_F(PictureReading, AnAnimationMovesAndBeginsAgain)
{
    auto reader = readerOf(twoFrames());
    ASSERT_EQ(reader.problem(), u""_s);
    ASSERT_TRUE(reader.isAnimated());
    QList<QColor> colours;
    QList<int> delays;
    for (int i = 0; i < 3; ++i) {
        const PictureFrame frame = reader.next();
        ASSERT_FALSE(frame.isNull()) << i;
        colours += frame.levels.first().pixelColor(0, 0);
        delays += int(frame.delay.count());
    }
    EXPECT_EQ(colours, QList<QColor>({Qt::red, Qt::green, Qt::red}));
    EXPECT_EQ(delays, QList<int>({50, 100, 50}))
        << "a frame without a time is shown as browsers do";
}

TEST_F(PictureReading, SomethingElseIsToldAndNotDecoded)
{
    EXPECT_EQ(readerOf("<svg xmlns='http://www.w3.org/2000/svg'/>").problem(),
              u"Cette image est endommagée ou d'un format inconnu."_s);
    EXPECT_EQ(readerOf("").problem(), u"Cette image est endommagée ou d'un format inconnu."_s);
}

TEST_F(PictureReading, APictureThatHasVanishedIsTold)
{
    EXPECT_EQ(PictureReader(folder.filePath(u"absente"_s)).problem(),
              u"Le fichier n'est plus là."_s);
}

TEST_F(PictureReading, HostilePicturesAreRefusedOrDecodedWithinTheLimit)
{
    for (const QByteArray &bytes : SamplePictures::hostile()) {
        auto reader = readerOf(bytes);
        if (!reader.problem().isEmpty())
            continue;
        const PictureFrame frame = reader.next();
        for (const QImage &level : frame.levels)
            ASSERT_LE(qint64(level.width()) * level.height(), MaximumPixels);
    }
}
