#include "SessionTest.h"
#include "simulator/server/Packed.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

using Kind = TransportError::Kind;

class DownloadTest : public SessionTest
{
protected:
    HttpRequest download(const QString &below = u"new/folder"_s) const
    {
        HttpRequest result = request("/file");
        result.saveAs = folder.filePath(below + u"/.part-XXXXXX"_s);
        return result;
    }
    QStringList files() const
    {
        return QDir(folder.filePath(u"new/folder"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir folder;
};

TEST_F(DownloadTest, TheBodyOfASuccessIsStored)
{
    server.answer(RawAnswer::http(200, "content", {{"Content-Type", "image/png"}}));
    const HttpAnswer answer = answerTo(download());
    EXPECT_TRUE(answer.body.isEmpty());
    QFile file(answer.file->fileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "content");
    EXPECT_EQ(server.journal().first().header("Accept-Encoding"), "identity");
}

TEST_F(DownloadTest, AnEmptyFileIsAFile)
{
    server.answer(RawAnswer::http(200, {}));
    const HttpAnswer answer = answerTo(download());
    ASSERT_TRUE(answer.file);
    EXPECT_EQ(QFileInfo(answer.file->fileName()).size(), 0);
}

TEST_F(DownloadTest, TheFileGoesWithTheAnswer)
{
    server.answer(RawAnswer::http(200, "content"));
    EXPECT_FALSE(answerTo(download()).file->fileName().isEmpty());
    EXPECT_TRUE(runUntil([&] { return files().isEmpty(); }));
}

TEST_F(DownloadTest, TheBodyOfAFailureIsNot)
{
    server.answer(RawAnswer::http(404, "nothing here"));
    const HttpAnswer answer = answerTo(download());
    EXPECT_EQ(answer.body, "nothing here");
    EXPECT_FALSE(answer.file);
    EXPECT_FALSE(QDir(folder.filePath(u"new"_s)).exists());
}

TEST_F(DownloadTest, AFileThatWasCutShortIsNotKept)
{
    server.answer(RawAnswer::http(200, "content").cut(3, RawAnswer::Ending::Close));
    EXPECT_EQ(failureOf(download()), Kind::ConnectionLost);
    EXPECT_TRUE(runUntil([&] { return files().isEmpty(); }));
}

TEST_F(DownloadTest, AFileMayBeLongerThanWhatIsHeldInMemory)
{
    constexpr qint64 size = HttpRequest::MaximumInMemory + 1024LL * 1024;
    server.answer(RawAnswer::large(size, size, "application/zip"));
    HttpRequest large = download();
    large.mostStored = size;
    EXPECT_EQ(answerTo(large).file->size(), size);
    large.mostStored = size - 1;
    EXPECT_EQ(failureOf(large), Kind::TooLarge);
    EXPECT_TRUE(runUntil([&] { return files().isEmpty(); }));
}

TEST_F(DownloadTest, TheHashIsThatOfTheStoredBytes)
{
    server.answer(RawAnswer::http(200, "content"));
    EXPECT_EQ(answerTo(download()).sha256,
              "ed7002b439e9ac845f22357d822bac1444730fbdb6016d3ec9432297b9ec9f73");
    EXPECT_TRUE(answerTo(request("/file")).sha256.isEmpty());
}

TEST_F(DownloadTest, TheHashOfARedirectIsNotCounted)
{
    server.answerNext(RawAnswer::http(302, "moved", {{"Location", "/there"}}));
    server.answerNext(RawAnswer::http(200, "content"));
    EXPECT_TRUE(answerTo(download()).sha256.startsWith("ed7002b4"));
}

TEST_F(DownloadTest, AnAnnouncedSizeAboveTheLimitIsRefused)
{
    HttpRequest sent = download();
    sent.mostStored = 100;
    server.answer(RawAnswer::large(101, 1, "application/zip"));
    EXPECT_EQ(failureOf(sent), Kind::TooLarge);
    EXPECT_TRUE(runUntil([&] { return files().isEmpty(); }));
}

TEST_F(DownloadTest, ABodyWithoutALengthIsEndedAtTheLimit)
{
    HttpRequest sent = download();
    sent.mostStored = 100'000;
    server.answer(RawAnswer::largeOfUnknownLength(100LL * 1024 * 1024, "application/zip"));
    EXPECT_EQ(failureOf(sent), Kind::TooLarge);
    EXPECT_TRUE(runUntil([&] { return files().isEmpty(); }));
}

TEST_F(DownloadTest, AFileOfExactlyTheLimitIsStored)
{
    HttpRequest sent = download();
    sent.mostStored = 7;
    server.answer(RawAnswer::http(200, "content"));
    EXPECT_EQ(answerTo(sent).file->size(), 7);
}

TEST_F(DownloadTest, AFolderThatCannotBeMadeIsAFailure)
{
    QFile blocking(folder.filePath(u"file"_s));
    ASSERT_TRUE(blocking.open(QIODevice::WriteOnly));
    server.answer(RawAnswer::http(200, "content"));
    EXPECT_EQ(failureOf(download(u"file/below"_s)), Kind::NotStored);
}

TEST_F(DownloadTest, AFullDiskIsAFailureAndLeavesNothing)
{
    // The first body is written as it arrives, the second when it is complete.
    for (const qsizetype bytes : {200'000, 2'000}) {
        server.answer(RawAnswer::http(200, QByteArray(bytes, 'x')));
        const SmallDisk disk(1'000);
        EXPECT_EQ(failureOf(download()), Kind::NotStored) << bytes;
        EXPECT_EQ(files(), QStringList()) << bytes;
    }
}

TEST_F(DownloadTest, OnlyTheLastAnswerOfARedirectIsStored)
{
    server.answerNext(RawAnswer::http(302, "moved", {{"Location", "/there"}}));
    server.answerNext(RawAnswer::http(200, "content"));
    const HttpAnswer answer = answerTo(download());
    EXPECT_EQ(answer.file->size(), 7);
    // The temporary file gets its name when the name is requested.
    const QString name = QFileInfo(answer.file->fileName()).fileName();
    EXPECT_EQ(files(), QStringList{name});
}

} // namespace
