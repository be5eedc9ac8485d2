#include "http/TransportError.h"
#include "update/real/RealUpdate.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = TransportError::Kind;

class HttpTransportTest : public RealUpdate
{
protected:
    template <typename T>
    static T resultOf(QCoro::Task<T> task)
    {
        const TaskResult<T> result(std::move(task));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return result.value();
    }
    template <typename T>
    static std::optional<Kind> failureOf(QCoro::Task<T> task)
    {
        try {
            resultOf(std::move(task));
        } catch (const TransportError &error) {
            return error.kind();
        }
        return std::nullopt;
    }
    QUrl feedUrl() const { return QUrl(feedAddress()); }
    QUrl localFile(const QByteArray &content) const
    {
        writeFile(root.filePath(u"local"_s), content);
        return QUrl::fromLocalFile(root.filePath(u"local"_s));
    }
};

TEST_F(HttpTransportTest, ReadsTheFeedWithoutACache)
{
    feed = RawAnswer::http(200, "one", {{"Cache-Control", "max-age=3600"}});
    EXPECT_EQ(resultOf(transport->readFeed(feedUrl())).body, "one");
    feed = RawAnswer::http(200, "two", {{"Cache-Control", "max-age=3600"}});
    EXPECT_EQ(resultOf(transport->readFeed(feedUrl())).body, "two");
    EXPECT_EQ(server.journal().last().method, "GET");
    EXPECT_TRUE(server.journal().last().header("Authorization").isNull());
}

TEST_F(HttpTransportTest, PassesOnTheStatus)
{
    feed = RawAnswer::http(503, "closed");
    EXPECT_EQ(resultOf(transport->readFeed(feedUrl())).status, 503);
    EXPECT_EQ(resultOf(transport->fetchArchive(feedUrl())).status, 503);
    EXPECT_FALSE(resultOf(transport->fetchArchive(feedUrl())).file);
}

TEST_F(HttpTransportTest, AFeedThatIsSilentForTwentySecondsFails)
{
    feed = RawAnswer::nothing(RawAnswer::Ending::Stall);
    const TaskResult<UpdateTransport::Document> result(transport->readFeed(feedUrl()));
    EXPECT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    clock.advance(HttpTransport::FeedIdleLimit - std::chrono::milliseconds(1));
    EXPECT_FALSE(result.isDone());
    clock.advance(std::chrono::milliseconds(1));
    EXPECT_TRUE(result.hasFailed());
}

TEST_F(HttpTransportTest, FetchesAndHashesAnArchive)
{
    archive = RawAnswer::http(200, "content");
    const auto fetched = resultOf(
        transport->fetchArchive(QUrl(server.url().toString() + u"/velmora/files/Velmora.zip"_s)));
    EXPECT_EQ(fetched.status, 200);
    EXPECT_EQ(fetched.sha256, sha256("content"));
    EXPECT_EQ(readFile(fetched.file->fileName()), "content");
    EXPECT_TRUE(fetched.file->fileName().startsWith(temporary()));
}

TEST_F(HttpTransportTest, LocalFilesAreReadForAFeedThatTheUserHasTyped)
{
    const auto document = resultOf(transport->readFeed(localFile("{}")));
    EXPECT_EQ(document.body, "{}");
    EXPECT_EQ(document.status, std::nullopt);
    const auto copy = resultOf(transport->fetchArchive(localFile("content")));
    EXPECT_EQ(copy.sha256, sha256("content"));
    EXPECT_EQ(readFile(copy.file->fileName()), "content");
    EXPECT_EQ(copy.status, std::nullopt);
}

TEST_F(HttpTransportTest, LocalFilesAreLimitedToo)
{
    open(10);
    EXPECT_EQ(failureOf(transport->fetchArchive(localFile(QByteArray(11, 'x')))), Kind::TooLarge);
    EXPECT_EQ(
        failureOf(transport->readFeed(localFile(QByteArray(HttpTransport::LargestFeed + 1, 'x')))),
        Kind::TooLarge);
}

TEST_F(HttpTransportTest, ADeviceIsNoFile)
{
    const TaskResult<UpdateTransport::Document> result(
        transport->readFeed(QUrl(u"file:///dev/zero"_s)));
    EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_TRUE(result.hasFailed());
}

TEST_F(HttpTransportTest, OtherSchemesAreRefused)
{
    for (const QString &address : {u"ftp://localhost/a"_s, u"data:,{}"_s, u"qrc:/a"_s})
        EXPECT_EQ(failureOf(transport->readFeed(QUrl(address))), Kind::NoWebAddress)
            << address.toStdString();
}

TEST_F(HttpTransportTest, ACompleteUpdateFromALocalFeed)
{
    const TestBundle bundle = bundleOf(u"1.5"_s, u"122"_s);
    const QByteArray bytes = archiveOf(bundle);
    offer(u"1.5"_s, u"122"_s);
    writeFile(root.filePath(u"site/files/Velmora.zip"_s), bytes);
    writeFile(root.filePath(u"site/latest.json"_s), release.encoded());
    updater->setCustomFeed(QUrl::fromLocalFile(root.filePath(u"site/latest.json"_s)).toString());
    EXPECT_EQ(check(), State(State::Ready{release}));
    EXPECT_TRUE(server.journal().isEmpty());
}

/// A server whose certificate is not trusted.
class UntrustedServerTest : public RealUpdate
{
protected:
    RawServer stranger{Certificates::Kind::Stranger};
};

TEST_F(UntrustedServerTest, IsNotAsked)
{
    stranger.answer(RawAnswer::json("{}"));
    updater->setCustomFeed(stranger.url().toString() + u"/latest.json"_s);
    EXPECT_EQ(failure(),
              "Connexion non sécurisée : le certificat du serveur vient d'une autorité inconnue.");
    EXPECT_TRUE(stranger.journal().isEmpty());
}

} // namespace
