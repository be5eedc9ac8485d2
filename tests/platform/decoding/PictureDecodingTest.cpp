#include "platform/decoding/helper/PictureDecoding.h"

#include "platform/decoding/helper/PictureFormat.h"
#include "screens/kit/images/SamplePictures.h"

#include <gtest/gtest.h>

namespace {

constexpr PictureBounds Wide{.bound = {2048, 2048}, .mostPixels = qint64(24) * 1024 * 1024};

QSize sizeOf(const QByteArray &bytes, const PictureBounds &bounds = Wide)
{
    return decodedPicture(bytes, bounds).image.size();
}

} // namespace

TEST(PictureDecoding, AFormatIsKnownByItsFirstBytes)
{
    EXPECT_EQ(pictureFormatOf(SamplePictures::picture("png")), PictureFormat::Png);
    EXPECT_EQ(pictureFormatOf(SamplePictures::picture("jpg")), PictureFormat::Jpeg);
    EXPECT_EQ(pictureFormatOf(SamplePictures::gifClaiming({1, 1})), PictureFormat::Gif);
    EXPECT_EQ(pictureFormatOf("RIFF....WEBPVP8 "), PictureFormat::WebP);
    EXPECT_EQ(pictureFormatOf("\xef\xbb\xbf <?xml version='1.0'?>\n<svg/>"), PictureFormat::Svg);
}

TEST(PictureDecoding, FormatsThatNobodyNeedsAreNotRead)
{
    for (const char *format : {"bmp", "ico", "ppm", "xpm", "xbm"}) {
        ASSERT_FALSE(SamplePictures::picture(format).isEmpty()) << format;
        EXPECT_TRUE(sizeOf(SamplePictures::picture(format)).isEmpty()) << format;
    }
    EXPECT_TRUE(sizeOf("<html><body>Connexion</body></html>").isEmpty());
    EXPECT_TRUE(sizeOf("%PDF-1.4\n").isEmpty());
    EXPECT_TRUE(sizeOf({}).isEmpty());
}

TEST(PictureDecoding, APictureThatEndsTooEarlyIsUnreadable)
{
    const QByteArray whole = SamplePictures::picture("png", {300, 300});
    EXPECT_EQ(decodedPicture(whole.first(whole.size() / 2), Wide).status,
              DecodingStatus::Unreadable);
}

TEST(PictureDecoding, ThePixelsAreLimitedByTheDeclaration)
{
    const QByteArray bytes = SamplePictures::picture("png", {100, 100});
    EXPECT_EQ(decodedPicture(bytes, {{2048, 2048}, 9999}).status, DecodingStatus::TooLarge);
    EXPECT_EQ(sizeOf(bytes, {{2048, 2048}, 10000}), QSize(100, 100));
    EXPECT_EQ(decodedPicture(SamplePictures::pngClaiming({60000, 60000}), Wide).status,
              DecodingStatus::TooLarge);
}

TEST(PictureDecoding, ALargePictureIsScaledDownAndANarrowOneKeepsAPixel)
{
    EXPECT_EQ(sizeOf(SamplePictures::picture("png", {400, 100}), {{200, 200}, 40'000}),
              QSize(200, 50));
    EXPECT_EQ(sizeOf(SamplePictures::picture("png", {4000, 1}), {{200, 200}, 40'000}),
              QSize(200, 1));
}

TEST(PictureDecoding, ADrawingIsDrawnAtASizeThatItsBoundAllows)
{
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'/>";
    EXPECT_EQ(sizeOf(drawing), QSize(256, 128));
    EXPECT_EQ(sizeOf(drawing, {{64, 64}, 10'000}), QSize(64, 32));
    EXPECT_TRUE(sizeOf("<svg xmlns='http://www.w3.org/2000/svg'>").isEmpty()) << "not closed";
}

TEST(PictureDecoding, ADrawingHasNoFramesBecauseItIsPreviewedAsText)
{
    EXPECT_EQ(FrameReader("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'/>", 10'000)
                  .frame(0)
                  .status,
              DecodingStatus::Unreadable);
}

TEST(PictureDecoding, AFrameTooManyIsTheEnd)
{
    const QByteArray bytes = SamplePictures::picture("png");
    FrameReader reader(bytes, 10'000);
    EXPECT_EQ(reader.frame(0).image.size(), QSize(40, 30));
    EXPECT_EQ(reader.frame(1).status, DecodingStatus::End);
    EXPECT_EQ(reader.frame(0).image.size(), QSize(40, 30));
}

TEST(PictureDecoding, AJpegThatIsTooLargeIsReadAtAFraction)
{
    const QByteArray bytes = SamplePictures::picture("jpg", {400, 300});
    const ReadPicture half = FrameReader(bytes, 60'000).frame(0);
    EXPECT_EQ(half.image.size(), QSize(200, 150));
    EXPECT_EQ(half.whole, QSize(400, 300));
    EXPECT_EQ(FrameReader(bytes, 30'000).frame(0).status, DecodingStatus::TooLarge);
}
