#include "app/SiteImageFetcher.h"

#include "jira/JiraClient.h"
#include "simulator/SimulatedSite.h"
#include "simulator/SiteSeed.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray redPicture()
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

class SiteImageFetcherTest : public testing::Test
{
protected:
    SiteImageFetcherTest()
    {
        for (RawServer *server : {&site, &elsewhere})
            server->answer(RawAnswer::http(200, redPicture(), {{"Content-Type", "image/png"}}));
        images.showCredentials({site.url(), u"alice@exemple.fr"_s, u"s3cret"_s});
    }

    QImage load(const QUrl &url)
    {
        const TaskResult<QImage> result(loader.image(url));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return result.value();
    }

    RawServer site;
    RawServer elsewhere;
    ManualClock clock;
    ImageLoader loader;
    SiteImageFetcher images{loader, clock};
};

} // namespace

TEST_F(SiteImageFetcherTest, PictureOfTheSiteIsFetchedWithItsCredentials)
{
    EXPECT_EQ(load(site.url().resolved(QUrl(u"/avatar.png"_s))).size(), QSize(4, 4));
    EXPECT_EQ(site.journal().last().header("Authorization"),
              "Basic " + QByteArray("alice@exemple.fr:s3cret").toBase64());
}

TEST_F(SiteImageFetcherTest, PictureOfAnotherServerOnTheSameHostSeesNoCredentials)
{
    EXPECT_EQ(load(elsewhere.url().resolved(QUrl(u"/avatar.png"_s))).size(), QSize(4, 4));
    EXPECT_EQ(elsewhere.journal().last().header("Authorization"), QByteArray());
}

TEST_F(SiteImageFetcherTest, NextSignInTakesItsOwnCredentials)
{
    load(site.url().resolved(QUrl(u"/a.png"_s)));
    images.showCredentials({site.url(), QString(), u"other"_s});
    load(site.url().resolved(QUrl(u"/b.png"_s)));
    EXPECT_EQ(site.journal().last().header("Authorization"), "Bearer other");
}

TEST_F(SiteImageFetcherTest, APictureOfAProjectIsFetchedFromASiteThatGivesItToNobodyElse)
{
    SimulatedSite simulated{SiteSeed::company(10, clock.now())};
    const QTemporaryDir folder;
    ManualCalendar calendar;
    const JiraCredentials credentials{simulated.url(), simulated.site().email,
                                      simulated.site().token};
    JiraClient client{credentials, clock, calendar, folder.path()};
    const TaskResult<QList<Project>> projects(client.projects());
    ASSERT_TRUE(runUntil([&] { return projects.isDone(); }));
    const QUrl address = projects.value().first().avatarURL.value();

    EXPECT_TRUE(load(address).isNull());
    images.showCredentials(credentials);
    EXPECT_EQ(load(address).size(), QSize(48, 48));
}

TEST_F(SiteImageFetcherTest, APictureOfMoreBytesThanAreReadIsGivenUpAtOnce)
{
    elsewhere.answer(RawAnswer::large(ImageLoader::mostBytes + 1, 1000, "image/png"));
    EXPECT_TRUE(load(elsewhere.url().resolved(QUrl(u"/avatar.png"_s))).isNull());
}

TEST_F(SiteImageFetcherTest, NoPictureIsHadFromASiteThatIsGone)
{
    site.stopListening();
    EXPECT_TRUE(load(site.url().resolved(QUrl(u"/avatar.png"_s))).isNull());
}

TEST_F(SiteImageFetcherTest, APictureInALocalFileIsRead)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"capture d'écran.png"_s));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(redPicture());
    file.close();
    EXPECT_EQ(load(QUrl::fromLocalFile(file.fileName())).size(), QSize(4, 4));
    EXPECT_TRUE(load(QUrl::fromLocalFile(folder.filePath(u"absente.png"_s))).isNull());
}

TEST_F(SiteImageFetcherTest, AFileOfMoreBytesThanAreReadIsNoPicture)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"grande.png"_s));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(redPicture());
    // The rest takes no place on the disk.
    ASSERT_TRUE(file.resize(ImageLoader::mostBytes + 1));
    EXPECT_TRUE(load(QUrl::fromLocalFile(file.fileName())).isNull());
}

TEST_F(SiteImageFetcherTest, AFileThatNeverEndsIsNotRead)
{
    EXPECT_TRUE(load(QUrl::fromLocalFile(u"/dev/zero"_s)).isNull());
}
