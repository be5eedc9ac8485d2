#include "screens/kit/images/ImageDecoding.h"

#include "screens/kit/images/SamplePictures.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

/// The peak memory use of the process so far, in MB.
long peakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

} // namespace

TEST(DecodedImage, PicturesOfTheUsualTypesAreRead)
{
    for (const char *format : {"png", "jpg", "bmp", "ico"}) {
        const auto image = decodedImage(SamplePictures::picture(format));
        EXPECT_EQ(image.size(), QSize(40, 30)) << format;
    }
    EXPECT_EQ(decodedImage(SamplePictures::gifClaiming({1, 1})).size(), QSize(1, 1));
}

TEST(DecodedImage, BytesThatAreNoPictureGiveNothing)
{
    EXPECT_TRUE(decodedImage({}).isNull());
    EXPECT_TRUE(decodedImage("<html>").isNull());
    EXPECT_TRUE(
        decodedImage("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>").isNull())
        << "a drawing is a program";
}

TEST(DecodedImage, APictureThatEndsTooEarlyGivesNothing)
{
    const auto whole = SamplePictures::picture("png", {300, 300});
    EXPECT_TRUE(decodedImage(whole.first(whole.size() / 2)).isNull());
}

TEST(DecodedImage, AClaimOfSixtyThousandSquaredIsRefusedBeforeItIsDecoded)
{
    const long before = peakMegabytes();
    EXPECT_TRUE(decodedImage(SamplePictures::pngClaiming({60000, 60000})).isNull());
    EXPECT_TRUE(decodedImage(SamplePictures::bmpClaiming({60000, 60000})).isNull());
    EXPECT_TRUE(decodedImage(SamplePictures::gifClaiming({60000, 60000})).isNull());
    EXPECT_TRUE(
        decodedImage(SamplePictures::iconHolding(SamplePictures::pngClaiming({60000, 60000})))
            .isNull());
    EXPECT_LT(peakMegabytes() - before, 150);
}

TEST(DecodedImage, LimitsAreOnBytesAndPixels)
{
    const auto bytes = SamplePictures::picture("png", {100, 100});
    EXPECT_TRUE(decodedImage(bytes, {.bytes = bytes.size() - 1}).isNull());
    EXPECT_FALSE(decodedImage(bytes, {.bytes = bytes.size()}).isNull());
    EXPECT_TRUE(decodedImage(bytes, {.pixels = 9999}).isNull());
    EXPECT_FALSE(decodedImage(bytes, {.pixels = 10000}).isNull());
}

TEST(DecodedImage, ALargePictureIsKeptSmaller)
{
    const auto image = decodedImage(SamplePictures::picture("png", {400, 100}), {.keptSide = 200});
    EXPECT_EQ(image.size(), QSize(200, 50));
}

TEST(DecodedImage, AThousandHostilePicturesNeitherCrashNorTakeTheMemory)
{
    const auto pictures = SamplePictures::hostile();
    ASSERT_EQ(pictures.size(), 1000);
    const long before = peakMegabytes();
    int read = 0;
    for (const auto &bytes : pictures) {
        const auto image = decodedImage(bytes);
        read += image.isNull() ? 0 : 1;
        EXPECT_LE(std::max(image.width(), image.height()), 2048);
    }
    EXPECT_LT(peakMegabytes() - before, 300);
    EXPECT_LT(read, 500) << "most of them are no pictures";
    EXPECT_GT(read, 10) << "some wounds do not kill: else the samples test nothing";
}
