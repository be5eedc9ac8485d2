#include "ClientTest.h"
#include "http/TransportError.h"
#include "jira/AttachmentCache.h"

#include <QDir>
#include <QFile>

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

using Ending = RawAnswer::Ending;

class ClientTransfers : public ClientTest
{
protected:
    QUrl localFile(const QString &name, const QByteArray &content) const
    {
        QFile file(cache.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return QUrl::fromLocalFile(file.fileName());
    }
    /// Advances the clock until the operation ends. It may take several steps, because bytes that the server sent
    /// earlier can arrive late and restart the time limit.
    bool endsByTime(const auto &result)
    {
        return runUntil([&] {
            clock.advance(std::chrono::seconds(1));
            return result.isDone();
        });
    }
    /// An attachment whose record says that it has `size` bytes.
    Attachment attachment(const QString &name = u"rapport.pdf"_s, qint64 size = 4) const
    {
        Attachment result;
        result.size = size;
        result.id = u"10"_s;
        result.filename = name;
        result.mimeType = u"application/pdf"_s;
        result.contentURL = server.url().resolved(QUrl(u"/rest/api/3/attachment/content/10"_s));
        return result;
    }
    /// The folder in which the attachments of the site are kept.
    QString siteFolder() const
    {
        return AttachmentCache::siteFolder(cache.filePath(u"attachments"_s), server.url());
    }
    /// Puts a file where the download of `attachment` is kept.
    QString store(const Attachment &attachment, const QByteArray &content) const
    {
        const QString path = AttachmentCache::file(siteFolder(), attachment);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    /// The paths of all files in the folder of the site, relative to it.
    QStringList cached() const
    {
        const QDir folder(siteFolder());
        QStringList files;
        for (const QString &sub :
             folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden)) {
            for (const QString &name :
                 QDir(folder.filePath(sub)).entryList(QDir::Files | QDir::Hidden))
                files.append(sub + u'/' + name);
        }
        return files + folder.entryList(QDir::Files | QDir::Hidden);
    }
    static QByteArray contentOf(const QUrl &url)
    {
        QFile file(url.toLocalFile());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static QString impossible(const QString &name)
    {
        return u"Téléchargement de « "_s + name + u" » impossible."_s;
    }
};

TEST_F(ClientTransfers, FilesGoUpInOneRequest)
{
    server.answer(RawAnswer::json(
        R"([{"id":"7","filename":"note.txt","size":5},{"id":"8","filename":"b"}])"));
    const auto stored = resultOf(client->uploadAttachments(
        u"ABC-1"_s, {localFile(u"note \"é\".txt"_s, "salut"), localFile(u"b"_s, {})}));
    ASSERT_EQ(stored.size(), 2);
    EXPECT_EQ(stored.first().id, u"7"_s);
    EXPECT_EQ(stored.last().mimeType, u"application/octet-stream"_s);
    EXPECT_EQ(stored.last().created, clock.now());

    EXPECT_EQ(asked(), QStringList{u"POST /rest/api/3/issue/ABC-1/attachments"_s});
    EXPECT_EQ(lastRequest().header("X-Atlassian-Token"), "no-check");
    EXPECT_EQ(lastRequest().header("Accept"), "application/json");
    EXPECT_EQ(lastRequest().header("Authorization"), client->credentials().authorizationHeader());
    const QByteArray type = lastRequest().header("Content-Type");
    const QByteArray prefix = "multipart/form-data; boundary=";
    ASSERT_TRUE(type.startsWith(prefix));
    const QByteArray boundary = type.mid(prefix.size());
    EXPECT_EQ(lastRequest().body,
              "--" + boundary +
                  "\r\nContent-Disposition: form-data; name=\"file\"; filename=\"note 'é'.txt\"\r\n"
                  "Content-Type: text/plain\r\n\r\nsalut\r\n--" +
                  boundary +
                  "\r\nContent-Disposition: form-data; name=\"file\"; filename=\"b\"\r\n"
                  "Content-Type: application/octet-stream\r\n\r\n\r\n--" +
                  boundary + "--\r\n");
}

TEST_F(ClientTransfers, AFileThatCannotBeReadStopsTheUploadBeforeARequest)
{
    const QUrl missing = QUrl::fromLocalFile(cache.filePath(u"absent.txt"_s));
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a"), missing})),
              u"Impossible de lire le fichier « absent.txt »."_s);
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {QUrl::fromLocalFile(cache.path())})),
              u"Impossible de lire le fichier « "_s + QDir(cache.path()).dirName() + u" »."_s);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ClientTransfers, AFileTooLargeForJira)
{
    server.answer(RawAnswer::json(R"({"errorMessages":["too big"]})", 413));
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")})),
              u"Fichier trop volumineux pour Jira."_s);
}

TEST_F(ClientTransfers, ARefusedUploadKeepsWhatJiraSays)
{
    server.answer(RawAnswer::json(R"({"message":"lecture seule"})", 403));
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")})),
              u"Accès refusé par Jira (403). lecture seule"_s);
}

TEST_F(ClientTransfers, AnUploadReachesTheServerOnce)
{
    server.answer(RawAnswer::nothing(Ending::Close));
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")})),
              TransportError(TransportError::Kind::ConnectionLost).message());
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientTransfers, AStopEndsAnUpload)
{
    std::stop_source stop;
    server.answer(RawAnswer::nothing(Ending::Stall));
    const TaskResult result(
        client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")}, stop.get_token()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    stop.request_stop();
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(ClientTransfers, AnUploadWithoutAnAnswerEndsInTime)
{
    server.answer(RawAnswer::nothing(Ending::Stall));
    const TaskResult result(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")}));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    clock.advance(std::chrono::seconds(299));
    EXPECT_FALSE(result.isDone()) << "Jira may look long at what it was sent";
    ASSERT_TRUE(endsByTime(result));
    EXPECT_THROW(result.value(), TransportError);
}

TEST_F(ClientTransfers, ADownloadOverASlowLineGoesOn)
{
    server.answer(RawAnswer::http(200, "%PDF").cut(2, Ending::Stall));
    const TaskResult result(client->download(attachment()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    clock.advance(std::chrono::seconds(299));
    EXPECT_FALSE(result.isDone());
    EXPECT_TRUE(endsByTime(result));
}

TEST_F(ClientTransfers, ADownloadIsKeptUnderItsName)
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

TEST_F(ClientTransfers, ASecondDownloadMakesNoRequest)
{
    server.answer(RawAnswer::http(200, "%PDF"));
    const QUrl first = resultOf(client->download(attachment()));
    EXPECT_EQ(resultOf(client->download(attachment())), first);
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientTransfers, AttachmentsOfOneNameNeverMeet)
{
    server.answerNext(RawAnswer::http(200, "a"));
    server.answerNext(RawAnswer::http(200, "b"));
    const Attachment first = attachment(u"rapport.pdf"_s, 1);
    Attachment other = first;
    other.id = u"11"_s;
    EXPECT_EQ(contentOf(resultOf(client->download(first))), "a");
    EXPECT_EQ(contentOf(resultOf(client->download(other))), "b");
}

TEST_F(ClientTransfers, TwoDownloadsOfOneAttachmentMayRace)
{
    server.answer(RawAnswer::http(200, "%PDF"));
    const TaskResult first(client->download(attachment()));
    const TaskResult second(client->download(attachment()));
    ASSERT_TRUE(runUntil([&] { return first.isDone() && second.isDone(); }));
    EXPECT_EQ(first.value(), second.value());
    EXPECT_EQ(contentOf(first.value()), "%PDF");
    EXPECT_EQ(cached(), QStringList{u"10/rapport.pdf"_s});
}

TEST_F(ClientTransfers, AnAttachmentNamedWithASlashIsStoredWithADash)
{
    server.answer(RawAnswer::http(200, "x"));
    resultOf(client->download(attachment(u"a/b.pdf"_s, 1)));
    EXPECT_EQ(cached(), QStringList{u"10/a-b.pdf"_s});
}

TEST_F(ClientTransfers, AnAttachmentWithAnEmptyNameIsStoredAsFichier)
{
    server.answer(RawAnswer::http(200, "x"));
    resultOf(client->download(attachment({}, 1)));
    EXPECT_EQ(cached(), QStringList{u"10/fichier"_s});
}

TEST_F(ClientTransfers, WithoutAnAddressThereIsNothingToDownload)
{
    Attachment without = attachment();
    without.contentURL.reset();
    EXPECT_EQ(failureOf(client->download(without)), u"Réponse inattendue de Jira."_s);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ClientTransfers, AFailedDownloadSaysWhich)
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

TEST_F(ClientTransfers, APageOfASignInIsNoFile)
{
    server.answer(RawAnswer::html("<html>Connecte-toi</html>"));
    EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientTransfers, NorIsOneBehindARedirect)
{
    server.answerBy([](const RawRequest &request) {
        return request.target == "/login" ? RawAnswer::html("<html>Connecte-toi</html>")
                                          : RawAnswer::redirect("/login");
    });
    EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientTransfers, AnAttachedPageIsAFile)
{
    server.answer(RawAnswer::html("<html>Rapport</html>"));
    Attachment page = attachment(u"rapport.html"_s);
    page.mimeType = u"text/html"_s;
    page.size = 20;
    EXPECT_EQ(contentOf(resultOf(client->download(page))), "<html>Rapport</html>");
}

TEST_F(ClientTransfers, AnAttachedPageWhoseTypeHasParametersIsAFile)
{
    server.answer(RawAnswer::html("<html>Rapport</html>"));
    Attachment page = attachment(u"rapport.html"_s);
    page.mimeType = u"Text/HTML; charset=utf-8"_s;
    page.size = 20;
    EXPECT_EQ(contentOf(resultOf(client->download(page))), "<html>Rapport</html>");
}

TEST_F(ClientTransfers, APageOfAnotherSizeThanTheAttachedOneIsNoFile)
{
    server.answer(RawAnswer::html("<html>Connecte-toi</html>"));
    Attachment page = attachment(u"rapport.html"_s);
    page.mimeType = u"text/html"_s;
    page.size = 20;
    EXPECT_EQ(failureOf(client->download(page)), impossible(u"rapport.html"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientTransfers, AFileCutShortIsNotKept)
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

TEST_F(ClientTransfers, AFileOnAnotherOriginComesWithoutTheHeader)
{
    RawServer media;
    media.answer(RawAnswer::http(200, "%PDF"));
    server.answer(RawAnswer::redirect(media.url().toEncoded() + "/signed?token=1", 303));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
    ASSERT_EQ(media.journal().size(), 1);
    EXPECT_TRUE(media.journal().first().header("Authorization").isNull());
    EXPECT_EQ(media.journal().first().target, "/signed?token=1");
}

TEST_F(ClientTransfers, AnAddressOnAnotherOriginGetsNoHeaderEither)
{
    RawServer media;
    media.answer(RawAnswer::http(200, "%PDF"));
    Attachment elsewhere = attachment();
    elsewhere.contentURL = media.url().resolved(QUrl(u"/x"_s));
    resultOf(client->download(elsewhere));
    EXPECT_TRUE(media.journal().first().header("Authorization").isNull());
}

TEST_F(ClientTransfers, AnAddressThatIsNoHTTPIsNotOpened)
{
    Attachment local = attachment();
    local.contentURL = QUrl::fromLocalFile(localFile(u"secret"_s, "secret").toLocalFile());
    EXPECT_FALSE(failureOf(client->download(local)).isEmpty());
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientTransfers, AStopEndsADownloadWithoutAFile)
{
    std::stop_source stop;
    server.answer(RawAnswer::http(200, "%PDF-1.7").cut(3, Ending::Stall));
    const TaskResult result(client->download(attachment(), stop.get_token()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    stop.request_stop();
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientTransfers, ACacheThatCannotBeWrittenIsAFailure)
{
    localFile(u"attachments"_s, "a file where the folder should be");
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(failureOf(client->download(attachment())),
              TransportError(TransportError::Kind::NotStored).message());
}

TEST_F(ClientTransfers, WhatStandsInTheWayIsReplaced)
{
    QDir().mkpath(siteFolder() + u"/10/rapport.pdf/x"_s);
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
}

/// A response with status 200 that is not the file.
class WrongFile : public ClientTransfers, public testing::WithParamInterface<RawAnswer>
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

TEST_F(ClientTransfers, AFileCutUnderALengthThatCannotBeReadIsNotKept)
{
    server.answer(
        RawAnswer::http(200, "%PD", {{"Content-Length", "four"}}).withEnding(Ending::Close));
    EXPECT_NE(failureOf(client->download(attachment())), QString());
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientTransfers, AStoredFileOfAnotherSizeIsFetchedAgain)
{
    store(attachment(), "<html>Connecte-toi</html>");
    server.answer(RawAnswer::http(200, "%PDF"));
    EXPECT_EQ(contentOf(resultOf(client->download(attachment()))), "%PDF");
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientTransfers, AFileWhoseSizeNobodyKnowsIsFetchedEachTime)
{
    server.answer(RawAnswer::http(200, "%PDF"));
    const Attachment unknown = attachment(u"rapport.pdf"_s, 0);
    EXPECT_EQ(contentOf(resultOf(client->download(unknown))), "%PDF");
    EXPECT_EQ(contentOf(resultOf(client->download(unknown))), "%PDF");
    EXPECT_EQ(server.journal().size(), 2);
}

/// The body stalls behind its first megabyte, so only an end at the announced size ends the download.
TEST_F(ClientTransfers, ADownloadEndsWhereItExceedsTheAnnouncedSize)
{
    RawAnswer endless = RawAnswer::largeOfUnknownLength(1 << 20, "application/pdf");
    endless.ending = Ending::Stall;
    server.answer(endless);
    EXPECT_EQ(failureOf(client->download(attachment())), impossible(u"rapport.pdf"_s));
    EXPECT_EQ(cached(), QStringList());
}

TEST_F(ClientTransfers, APackedDownloadEndsWhereItExceedsTheAnnouncedSize)
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

TEST_F(ClientTransfers, TwoSitesWithOneIdAndOneNameKeepTheirOwnFiles)
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

} // namespace
