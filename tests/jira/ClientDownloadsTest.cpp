#include "TransferTest.h"
#include "http/TransportError.h"

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

using Ending = RawAnswer::Ending;
using ClientDownloads = TransferTest;

TEST_F(ClientDownloads, ADownloadOverASlowLineGoesOn)
{
    server.answer(RawAnswer::http(200, "%PDF").cut(2, Ending::Stall));
    const TaskResult result(client->download(attachment()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    clock.advance(std::chrono::seconds(299));
    EXPECT_FALSE(result.isDone());
    EXPECT_TRUE(endsByTime(result));
}

TEST_F(ClientDownloads, ADownloadIsKeptUnderItsName)
{
    server.answer(RawAnswer::http(200, "%PDF", {{"Content-Type", "application/pdf"}}));
    const QUrl url = resultOf(client->download(attachment()));
    EXPECT_EQ(url, QUrl::fromLocalFile(siteFolder() + u"/10/rapport.pdf"_s));
    EXPECT_EQ(contentOf(url), "%PDF");
    EXPECT_EQ(cached(), QStringList{u"10/rapport.pdf"_s});
    EXPECT_EQ(asked(), QStringList{u"GET /rest/api/3/attachment/content/10"_s});
    EXPECT_TRUE(lastRequest().header("Accept").isNull());
    EXPECT_EQ(lastRequest().header("Authorization"), client->credentials().authorizationHeader());
}

TEST_F(ClientDownloads, ASecondDownloadMakesNoRequest)
{
    server.answer(RawAnswer::http(200, "%PDF"));
    const QUrl first = resultOf(client->download(attachment()));
    EXPECT_EQ(resultOf(client->download(attachment())), first);
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientDownloads, AttachmentsOfOneNameNeverMeet)
{
    server.answerNext(RawAnswer::http(200, "a"));
    server.answerNext(RawAnswer::http(200, "b"));
    const Attachment first = attachment(u"rapport.pdf"_s, 1);
    Attachment other = first;
    other.id = u"11"_s;
    EXPECT_EQ(contentOf(resultOf(client->download(first))), "a");
    EXPECT_EQ(contentOf(resultOf(client->download(other))), "b");
}

TEST_F(ClientDownloads, TwoDownloadsOfOneAttachmentMayRace)
{
    server.answer(RawAnswer::http(200, "%PDF"));
    const TaskResult first(client->download(attachment()));
    const TaskResult second(client->download(attachment()));
    ASSERT_TRUE(runUntil([&] { return first.isDone() && second.isDone(); }));
    EXPECT_EQ(first.value(), second.value());
    EXPECT_EQ(contentOf(first.value()), "%PDF");
    EXPECT_EQ(cached(), QStringList{u"10/rapport.pdf"_s});
}

TEST_F(ClientDownloads, AnAttachmentNamedWithASlashIsStoredWithADash)
{
    server.answer(RawAnswer::http(200, "x"));
    resultOf(client->download(attachment(u"a/b.pdf"_s, 1)));
    EXPECT_EQ(cached(), QStringList{u"10/a-b.pdf"_s});
}

TEST_F(ClientDownloads, AnAttachmentWithAnEmptyNameIsStoredAsFichier)
{
    server.answer(RawAnswer::http(200, "x"));
    resultOf(client->download(attachment({}, 1)));
    EXPECT_EQ(cached(), QStringList{u"10/fichier"_s});
}

TEST_F(ClientDownloads, WithoutAnAddressThereIsNothingToDownload)
{
    Attachment without = attachment();
    without.contentURL.reset();
    EXPECT_EQ(failureOf(client->download(without)), u"Réponse inattendue de Jira."_s);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ClientDownloads, AFailedDownloadSaysWhich)
{
    for (const int status : {404, 410, 500}) {
        server.answer(RawAnswer::json(R"({"message":"x"})", status));
        EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    }
    server.answer(RawAnswer::http(401, {}));
    EXPECT_TRUE(
        failureOf(client->download(attachment())).startsWith(u"Jira a refusé les identifiants"_s));
    server.answer(RawAnswer::http(403, {}));
    EXPECT_EQ(failureOf(client->download(attachment())),
              u"Accès refusé par Jira (403). "_s + impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, APageOfASignInIsNoFile)
{
    server.answer(RawAnswer::html("<html>Connecte-toi</html>"));
    EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, NorIsOneBehindARedirect)
{
    server.answerBy([](const RawRequest &request) {
        return request.target == "/login" ? RawAnswer::html("<html>Connecte-toi</html>")
                                          : RawAnswer::redirect("/login");
    });
    EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, AnAttachedPageIsAFile)
{
    server.answer(RawAnswer::html("<html>Rapport</html>"));
    Attachment page = attachment(u"rapport.html"_s);
    page.mimeType = u"text/html"_s;
    page.size = 20;
    EXPECT_EQ(contentOf(resultOf(client->download(page))), "<html>Rapport</html>");
}

TEST_F(ClientDownloads, AnAttachedPageWhoseTypeHasParametersIsAFile)
{
    server.answer(RawAnswer::html("<html>Rapport</html>"));
    Attachment page = attachment(u"rapport.html"_s);
    page.mimeType = u"Text/HTML; charset=utf-8"_s;
    page.size = 20;
    EXPECT_EQ(contentOf(resultOf(client->download(page))), "<html>Rapport</html>");
}

TEST_F(ClientDownloads, APageOfAnotherSizeThanTheAttachedOneIsNoFile)
{
    server.answer(RawAnswer::html("<html>Connecte-toi</html>"));
    Attachment page = attachment(u"rapport.html"_s);
    page.mimeType = u"text/html"_s;
    page.size = 20;
    EXPECT_EQ(failureOf(client->download(page)), impossible(u"rapport.html"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, AFileCutShortIsNotKept)
{
    const Attachment longer = attachment(u"rapport.pdf"_s, 8);
    server.answer(RawAnswer::http(200, "%PDF-1.7").cut(3, Ending::Close));
    EXPECT_EQ(failureOf(client->download(longer)),
              TransportError(TransportError::Kind::ConnectionLost).message());
    // The server does not announce the length of this file, but the attachment's record contains it.
    server.answer(RawAnswer{"HTTP/1.1 200 OK\r\n\r\n%PDF-", Ending::Close});
    EXPECT_EQ(failureOf(client->download(longer)), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, AFileOnAnotherOriginComesWithoutTheHeader)
{
    RawServer media;
    media.answer(RawAnswer::http(200, "%PDF"));
    server.answer(RawAnswer::redirect(media.url().toEncoded() + "/signed?token=1", 303));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
    ASSERT_EQ(media.journal().size(), 1);
    EXPECT_TRUE(media.journal().first().header("Authorization").isNull());
    EXPECT_EQ(media.journal().first().target, "/signed?token=1");
}

TEST_F(ClientDownloads, AnAddressOnAnotherOriginGetsNoHeaderEither)
{
    RawServer media;
    media.answer(RawAnswer::http(200, "%PDF"));
    Attachment elsewhere = attachment();
    elsewhere.contentURL = media.url().resolved(QUrl(u"/x"_s));
    resultOf(client->download(elsewhere));
    EXPECT_TRUE(media.journal().first().header("Authorization").isNull());
}

TEST_F(ClientDownloads, AnAddressThatIsNoHTTPIsNotOpened)
{
    Attachment local = attachment();
    local.contentURL = QUrl::fromLocalFile(localFile(u"secret"_s, "secret").toLocalFile());
    EXPECT_FALSE(failureOf(client->download(local)).isEmpty());
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, AStopEndsADownloadWithoutAFile)
{
    std::stop_source stop;
    server.answer(RawAnswer::http(200, "%PDF-1.7").cut(3, Ending::Stall));
    const TaskResult result(client->download(attachment(), stop.get_token()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    stop.request_stop();
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, ACacheThatCannotBeWrittenIsAFailure)
{
    localFile(u"attachments"_s, "a file where the folder should be");
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(failureOf(client->download(attachment())),
              TransportError(TransportError::Kind::NotStored).message());
}

TEST_F(ClientDownloads, WhatStandsInTheWayIsReplaced)
{
    QDir().mkpath(siteFolder() + u"/10/rapport.pdf/x"_s);
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
}

/// A response with status 200 that is not the file.
class WrongFile : public ClientDownloads, public testing::WithParamInterface<RawAnswer>
{
};

TEST_P(WrongFile, IsNotKept)
{
    server.answer(GetParam());
    EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
    // The next attempt asks the site again.
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
}

INSTANTIATE_TEST_SUITE_P(
    Answers, WrongFile,
    testing::Values(RawAnswer::http(200, "no", {{"Content-Type", "text/plain"}}),
                    RawAnswer::http(200, "<html>Connecte-toi</html>"),
                    RawAnswer::json(R"({"errorMessages":["x"]})"), RawAnswer::http(200, {}),
                    RawAnswer::http(200, "%PDF and more"),
                    RawAnswer{"HTTP/1.1 200 OK\r\n\r\n%PD", Ending::Close}));

TEST_F(ClientDownloads, AFileCutUnderALengthThatCannotBeReadIsNotKept)
{
    server.answer(
        RawAnswer::http(200, "%PD", {{"Content-Length", "four"}}).withEnding(Ending::Close));
    EXPECT_NE(failureOf(client->download(attachment())), QString());
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, AStoredFileOfAnotherSizeIsFetchedAgain)
{
    store(attachment(), "<html>Connecte-toi</html>");
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientDownloads, AFileWhoseSizeNobodyKnowsIsFetchedEachTime)
{
    server.answer(RawAnswer::http(200, "%PDF"));
    const Attachment unknown = attachment(u"rapport.pdf"_s, 0);
    EXPECT_EQ(contentOf(resultOf(client->download(unknown))), "%PDF");
    EXPECT_EQ(contentOf(resultOf(client->download(unknown))), "%PDF");
    EXPECT_EQ(server.journal().size(), 2);
}

/// The body stalls behind its first megabyte, so only an end at the announced size ends the download.
TEST_F(ClientDownloads, ADownloadEndsWhereItExceedsTheAnnouncedSize)
{
    RawAnswer endless = RawAnswer::largeOfUnknownLength(1 << 20, "application/pdf");
    endless.ending = Ending::Stall;
    server.answer(endless);
    EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, APackedDownloadEndsWhereItExceedsTheAnnouncedSize)
{
    QByteArray packed(4096, Qt::Uninitialized);
    auto length = uLongf(packed.size());
    const QByteArray content(1 << 20, ' ');
    ASSERT_EQ(compress(reinterpret_cast<Bytef *>(packed.data()), &length,
                       reinterpret_cast<const Bytef *>(content.data()), uLong(content.size())),
              Z_OK);
    packed.truncate(qsizetype(length));
    server.answer(RawAnswer::http(200, packed.first(packed.size() / 2),
                                  {{"Content-Encoding", "deflate"},
                                   {"Content-Length", QByteArray::number(packed.size())}})
                      .withEnding(Ending::Stall));
    EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientDownloads, TwoSitesWithOneIdAndOneNameKeepTheirOwnFiles)
{
    server.answer(RawAnswer::http(200, "mine"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "mine");
    RawServer other;
    other.answer(RawAnswer::http(200, "your"));
    connectAs({other.url(), u"alice@exemple.fr"_s, u"s3cret"_s});
    Attachment namesake = attachment();
    namesake.contentURL = other.url().resolved(QUrl(u"/rest/api/3/attachment/content/10"_s));
    EXPECT_EQ(contentOf(resultOf(client->download(namesake))), "your");
    EXPECT_EQ(other.journal().size(), 1);
}

TEST_F(ClientDownloads, ALinkInTheCacheLeadsToNoDeletionElsewhere)
{
    const QUrl precious = localFile(u"precious"_s, "precious");
    QDir().mkpath(siteFolder() + u"/10"_s);
    ASSERT_TRUE(QFile::link(cache.path(), siteFolder() + u"/10/rapport.pdf"_s));
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
    EXPECT_EQ(contentOf(precious), "precious");
}

TEST_F(ClientDownloads, ALinkedFolderInTheCacheIsNotWrittenTo)
{
    const QString elsewhere = cache.filePath(u"elsewhere"_s);
    QDir().mkpath(elsewhere + u"/rapport.pdf/precious"_s);
    QDir().mkpath(siteFolder());
    ASSERT_TRUE(QFile::link(elsewhere, siteFolder() + u"/10"_s));
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
    EXPECT_TRUE(QFileInfo::exists(elsewhere + u"/rapport.pdf/precious"_s));
    EXPECT_FALSE(QFileInfo(siteFolder() + u"/10"_s).isSymLink());
}

TEST_F(ClientDownloads, ALinkInTheCacheIsNoStoredFile)
{
    const QUrl secret = localFile(u"secret"_s, "1234");
    QDir().mkpath(siteFolder() + u"/10"_s);
    ASSERT_TRUE(QFile::link(secret.toLocalFile(), siteFolder() + u"/10/rapport.pdf"_s));
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
    EXPECT_EQ(contentOf(secret), "1234");
}

} // namespace
