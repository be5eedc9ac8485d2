#include "screens/Bench.h"
#include "screens/kit/images/ImageLoader.h"
#include "screens/kit/images/SamplePictures.h"
#include "screens/kit/images/ScriptedFetcher.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class RemoteImageTest : public testing::Test
{
protected:
    RemoteImageTest() { ImageLoader::shared().setFetcher(&fetcher); }
    ~RemoteImageTest() override
    {
        EXPECT_EQ(bench.warnings(), "");
        ImageLoader::shared().setFetcher(nullptr);
    }

    /// Shows a picture of 100 by 60 with these further properties.
    QQuickItem *show(const QString &properties)
    {
        return bench.show(u"import Velmora.Attachments\nRemoteImage { width: 100; height: 60; "
                          "address: 'https://site.example/image'; "_s +
                          properties + u" }"_s);
    }
    QQuickItem *showLoaded(const QString &properties, QSize size)
    {
        QQuickItem *image = show(properties);
        if (fetcher.calls.count() > 0 && fetcher.calls.last().isPending())
            fetcher.calls.last().finish({200, SamplePictures::picture("png", size, Qt::green)});
        EXPECT_TRUE(QTest::qWaitFor([&] { return image->property("isLoaded").toBool(); }));
        return image;
    }
    bool isDrawnOn(const QRect &part)
    {
        const QImage shown = bench.window().grabWindow().copy(part);
        QImage blank(shown.size(), QImage::Format_RGB32);
        blank.fill(Qt::white);
        return shown.convertToFormat(blank.format()) != blank;
    }
    QColor colourAt(int x, int y) { return bench.window().grabWindow().pixelColor(x, y); }

    ScriptedFetcher fetcher;
    Bench bench;
};

} // namespace

TEST_F(RemoteImageTest, ACroppedPictureFillsItsPlace)
{
    showLoaded(u""_s, {400, 100});
    for (const QPoint at : {QPoint(1, 1), QPoint(98, 1), QPoint(50, 30), QPoint(98, 58)})
        EXPECT_EQ(colourAt(at.x(), at.y()), QColor(Qt::green)) << at.x() << ' ' << at.y();
    EXPECT_EQ(colourAt(50, 61), QColor(Qt::white));
}

TEST_F(RemoteImageTest, AFittedPictureIsShownWhole)
{
    showLoaded(u"crops: false"_s, {400, 100});
    EXPECT_EQ(colourAt(50, 30), QColor(Qt::green));
    EXPECT_EQ(colourAt(1, 30), QColor(Qt::green));
    EXPECT_EQ(colourAt(50, 5), QColor(Qt::white)) << "it is 25 high";
}

TEST_F(RemoteImageTest, ItsCornersAreRounded)
{
    showLoaded(u"corner: 12"_s, {100, 60});
    EXPECT_EQ(colourAt(0, 0), QColor(Qt::white));
    EXPECT_EQ(colourAt(99, 59), QColor(Qt::white));
    EXPECT_EQ(colourAt(50, 0), QColor(Qt::green));
}

TEST_F(RemoteImageTest, WithASquareFootOnlyTheUpperCornersAreRounded)
{
    showLoaded(u"corner: 12; hasSquareFoot: true"_s, {100, 60});
    EXPECT_EQ(colourAt(0, 0), QColor(Qt::white));
    EXPECT_EQ(colourAt(99, 59), QColor(Qt::green));
}

TEST_F(RemoteImageTest, AFailedLoadIsToldAndShowsTheSymbolOfAPicture)
{
    QQuickItem *image = show(u""_s);
    EXPECT_FALSE(image->property("failed").toBool());
    fetcher.calls.last().finish({404, {}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return image->property("failed").toBool(); }));
    EXPECT_TRUE(isDrawnOn({40, 20, 20, 20}));
}

TEST_F(RemoteImageTest, APictureThatIsAlreadyLoadedIsShownAtOnce)
{
    showLoaded(u""_s, {100, 60});
    const QQuickItem *again = show(u""_s);
    EXPECT_TRUE(again->property("isLoaded").toBool());
    EXPECT_EQ(fetcher.calls.count(), 1);
    EXPECT_EQ(colourAt(50, 30), QColor(Qt::green));
}

TEST_F(RemoteImageTest, WithoutAnAddressNothingIsFetched)
{
    const QQuickItem *image = bench.show(
        u"import Velmora.Attachments\nRemoteImage { width: 100; height: 60; address: '' }"_s);
    EXPECT_EQ(fetcher.calls.count(), 0);
    EXPECT_TRUE(image->property("failed").toBool());
}
