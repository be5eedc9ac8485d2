#include "screens/kit/images/ImageLoader.h"

#include "model/Failure.h"
#include "platform/Clock.h"
#include "screens/kit/images/SamplePictures.h"
#include "screens/kit/images/ScriptedFetcher.h"
#include "support/TaskResult.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ImageLoaderTest : public testing::Test
{
protected:
    ImageLoaderTest() { loader.setFetcher(&fetcher); }

    ImageRequest requested(const QUrl &url)
    {
        fetcher.calls.answerWith({.status = 404, .body = {}});
        TaskResult result(loader.image(url));
        EXPECT_TRUE(ended(result));
        return fetcher.calls.last().argument<0>();
    }
    static bool ended(const TaskResult<QImage> &result)
    {
        return QTest::qWaitFor([&] { return result.isDone(); });
    }

    const QUrl address{u"https://site.example/avatar/1?size=48"_s};
    const ImageAnswer good{.status = 200, .body = SamplePictures::picture("png")};
    ScriptedFetcher fetcher;
    ImageLoader loader;
};

TEST_F(ImageLoaderTest, TwoThatAskTogetherMakeOneRequest)
{
    TaskResult first(loader.image(address));
    TaskResult second(loader.image(address));
    ASSERT_EQ(fetcher.calls.count(), 1);
    fetcher.calls.last().finish(good);
    ASSERT_TRUE(ended(first) && ended(second));
    EXPECT_EQ(first.value().size(), QSize(40, 30));
    EXPECT_EQ(second.value().size(), QSize(40, 30));
    EXPECT_EQ(loader.pendingCount(), 0);
}

TEST_F(ImageLoaderTest, AnotherFetcherDoesNotGetThePicturesOfTheOneBefore)
{
    fetcher.calls.answerWith(good);
    TaskResult first(loader.image(address));
    ASSERT_TRUE(ended(first));
    ScriptedFetcher other;
    loader.setFetcher(&other);
    EXPECT_TRUE(loader.cached(address).isNull());
    loader.setFetcher(nullptr);
}

TEST_F(ImageLoaderTest, APictureThatIsThereIsGivenAtOnceAndNotFetchedAgain)
{
    fetcher.calls.answerWith(good);
    EXPECT_TRUE(loader.cached(address).isNull());
    TaskResult first(loader.image(address));
    ASSERT_TRUE(ended(first));
    EXPECT_FALSE(loader.cached(address).isNull());
    TaskResult second(loader.image(address));
    EXPECT_TRUE(second.isDone());
    EXPECT_EQ(fetcher.calls.count(), 1);
}

TEST_F(ImageLoaderTest, OnlyTheSitesOwnHostSeesTheCredentials)
{
    loader.setSiteHost(u"site.example"_s);
    EXPECT_TRUE(requested(address).withCredentials);
    EXPECT_FALSE(requested(QUrl(u"https://other.example/1"_s)).withCredentials);
}

TEST_F(ImageLoaderTest, AHostThatDiffersByASubdomainGoesOutWithoutCredentials)
{
    loader.setSiteHost(u"site.example"_s);
    for (const auto &host : {u"cdn.site.example"_s, u"site.example.evil.test"_s, u"example"_s,
                             u"xsite.example"_s, u"site.example."_s})
        EXPECT_FALSE(requested(QUrl(u"https://%1/1"_s.arg(host))).withCredentials)
            << host.toStdString();
}

TEST_F(ImageLoaderTest, WithoutASiteNoCredentialsAreSent)
{
    EXPECT_FALSE(requested(address).withCredentials);
    loader.setSiteHost(QString());
    EXPECT_FALSE(requested(address).withCredentials);
}

TEST_F(ImageLoaderTest, AnAddressWithoutAHostGetsNoCredentials)
{
    loader.setSiteHost(u""_s);
    EXPECT_FALSE(requested(QUrl(u"file:///tmp/a.png"_s)).withCredentials);
}

TEST_F(ImageLoaderTest, AHostIsComparedInItsEncodedForm)
{
    loader.setSiteHost(u"xn--t-bga.example"_s);
    EXPECT_TRUE(requested(QUrl(u"https://té.example/1"_s)).withCredentials);
}

TEST_F(ImageLoaderTest, ARequestMayTakeAMinute)
{
    EXPECT_EQ(requested(address).timeout, std::chrono::seconds(60));
    EXPECT_GT(requested(address).mostBytes, 0);
}

TEST_F(ImageLoaderTest, ARefusalLeavesNothingAndTheNextOneAsksAgain)
{
    fetcher.calls.answerWith({.status = 404, .body = good.body});
    TaskResult refused(loader.image(address));
    ASSERT_TRUE(ended(refused));
    EXPECT_TRUE(refused.value().isNull());
    EXPECT_TRUE(loader.cached(address).isNull());
    fetcher.calls.answerWith(good);
    TaskResult again(loader.image(address));
    ASSERT_TRUE(ended(again));
    EXPECT_FALSE(again.value().isNull());
    EXPECT_EQ(fetcher.calls.count(), 2);
}

TEST_F(ImageLoaderTest, AnAnswerThatIsNotOfHttpIsTaken)
{
    fetcher.calls.answerWith({.status = 0, .body = good.body});
    TaskResult result(loader.image(address));
    ASSERT_TRUE(ended(result));
    EXPECT_FALSE(result.value().isNull());
}

TEST_F(ImageLoaderTest, ANetworkFailureGivesNothing)
{
    fetcher.calls.failWith(Failure(u"hors ligne"_s));
    TaskResult result(loader.image(address));
    ASSERT_TRUE(ended(result));
    EXPECT_FALSE(result.hasFailed());
    EXPECT_TRUE(result.value().isNull());
    EXPECT_EQ(loader.pendingCount(), 0);
}

TEST_F(ImageLoaderTest, BytesThatAreNoPictureGiveNothingAndAreNotKept)
{
    fetcher.calls.answerWith({.status = 200, .body = "<html>Connexion</html>"});
    TaskResult result(loader.image(address));
    ASSERT_TRUE(ended(result));
    EXPECT_TRUE(result.value().isNull());
    EXPECT_TRUE(loader.cached(address).isNull());
}

TEST_F(ImageLoaderTest, AfterAnotherSiteIsConnectedTheOldPicturesStayAndTheHostIsTheNewOne)
{
    loader.setSiteHost(u"site.example"_s);
    fetcher.calls.answerWith(good);
    TaskResult result(loader.image(address));
    ASSERT_TRUE(ended(result));
    loader.setSiteHost(u"neuf.example"_s);
    EXPECT_FALSE(loader.cached(address).isNull());
    EXPECT_FALSE(loader.isOnSite(address));
    EXPECT_TRUE(loader.isOnSite(QUrl(u"https://neuf.example/1"_s)));
}

TEST_F(ImageLoaderTest, WhoeverStillWaitsWhenTheLoaderGoesIsGivenNothing)
{
    auto brief = std::make_unique<ImageLoader>();
    brief->setFetcher(&fetcher);
    TaskResult result(brief->image(address));
    ASSERT_FALSE(result.isDone());
    brief.reset();
    ASSERT_TRUE(ended(result));
    EXPECT_TRUE(result.value().isNull());
}

TEST_F(ImageLoaderTest, WithoutARoadOutsideThereAreNoPictures)
{
    loader.setFetcher(nullptr);
    TaskResult result(loader.image(address));
    ASSERT_TRUE(ended(result));
    EXPECT_TRUE(result.value().isNull());
}

TEST_F(ImageLoaderTest, ADrawingIsAPictureToo)
{
    fetcher.calls.answerWith({.status = 200,
                              .body = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 1'>"
                                      "<rect width='2' height='1' fill='#0f0'/></svg>"});
    TaskResult result(loader.image(address));
    ASSERT_TRUE(ended(result));
    ASSERT_FALSE(result.value().isNull());
    EXPECT_EQ(result.value().pixelColor(1, 1), QColor(Qt::green));
}

TEST_F(ImageLoaderTest, APictureThatIsLargerThanTheScreenIsKeptSmaller)
{
    fetcher.calls.answerWith({.status = 200, .body = SamplePictures::picture("png", {4096, 1024})});
    TaskResult result(loader.image(address));
    ASSERT_TRUE(ended(result));
    EXPECT_EQ(result.value().size(), QSize(2048, 512));
}

TEST_F(ImageLoaderTest, WithoutAHelperThereAreNoPictures)
{
    SystemClock clock;
    Decoders none({}, clock);
    ImageLoader other(none);
    other.setFetcher(&fetcher);
    fetcher.calls.answerWith(good);
    TaskResult result(other.image(address));
    ASSERT_TRUE(ended(result));
    EXPECT_TRUE(result.value().isNull());
    EXPECT_EQ(other.pendingCount(), 0);
}

TEST_F(ImageLoaderTest, AThousandHostilePicturesLeaveItAtRest)
{
    const auto pictures = SamplePictures::hostile();
    fetcher.calls.answerBy([&](const ImageRequest &request) {
        return ImageAnswer{200, pictures.at(request.url.port())};
    });
    std::vector<TaskResult<QImage>> results;
    results.reserve(size_t(pictures.size()));
    for (int i = 0; i < pictures.size(); ++i)
        results.emplace_back(loader.image(QUrl(u"https://site.example:%1/"_s.arg(i))));
    for (const auto &result : results)
        ASSERT_TRUE(ended(result));
    EXPECT_EQ(loader.pendingCount(), 0);
    for (int i = 0; i < pictures.size(); ++i)
        EXPECT_EQ(loader.cached(QUrl(u"https://site.example:%1/"_s.arg(i))).isNull(),
                  results[size_t(i)].value().isNull());
}
