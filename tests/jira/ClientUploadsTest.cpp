#include "TransferTest.h"
#include "http/TransportError.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Ending = RawAnswer::Ending;
using ClientUploads = TransferTest;

/// More than the system keeps of what a server does not read.
constexpr qsizetype Long = 24 << 20;

/// During its lifetime, the process has the rights of a user whom no file belongs to.
class Unprivileged
{
public:
    Unprivileged() : m_user(geteuid()) { m_isOther = m_user == 0 && seteuid(Nobody) == 0; }
    ~Unprivileged() { EXPECT_TRUE(!m_isOther || seteuid(m_user) == 0); }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

private:
    static constexpr uid_t Nobody = 65534;

    uid_t m_user;
    bool m_isOther = false;
};

TEST_F(ClientUploads, FilesGoUpInOneRequest)
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

TEST_F(ClientUploads, AFileThatCannotBeReadStopsTheUploadBeforeARequest)
{
    const QUrl missing = QUrl::fromLocalFile(cache.filePath(u"absent.txt"_s));
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a"), missing})),
              u"Impossible de lire le fichier « absent.txt »."_s);
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {QUrl::fromLocalFile(cache.path())})),
              u"Impossible de lire le fichier « "_s + QDir(cache.path()).dirName() + u" »."_s);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ClientUploads, AFileTooLargeForJira)
{
    server.answer(RawAnswer::json(R"({"errorMessages":["too big"]})", 413));
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")})),
              u"Fichier trop volumineux pour Jira."_s);
}

TEST_F(ClientUploads, ARefusedUploadKeepsWhatJiraSays)
{
    server.answer(RawAnswer::json(R"({"message":"lecture seule"})", 403));
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")})),
              u"Accès refusé par Jira (403). lecture seule"_s);
}

TEST_F(ClientUploads, AnUploadReachesTheServerOnce)
{
    server.answer(RawAnswer::nothing(Ending::Close));
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")})),
              TransportError(TransportError::Kind::ConnectionLost).message());
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientUploads, AStopEndsAnUpload)
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

TEST_F(ClientUploads, AnUploadWithoutAnAnswerEndsInTime)
{
    server.answer(RawAnswer::nothing(Ending::Stall));
    const TaskResult result(client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, "a")}));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    clock.advance(std::chrono::seconds(299));
    EXPECT_FALSE(result.isDone()) << "Jira may look long at what it was sent";
    ASSERT_TRUE(endsByTime(result));
    EXPECT_THROW(result.value(), TransportError);
}

TEST_F(ClientUploads, APipeIsNoFileToUpload)
{
    const QString pipe = cache.filePath(u"tube"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {QUrl::fromLocalFile(pipe)})),
              u"Impossible de lire le fichier « tube »."_s);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ClientUploads, AFileWithoutPermissionIsNotUploaded)
{
    const QUrl file = localFile(u"secret"_s, "1234");
    ASSERT_EQ(chmod(QFile::encodeName(file.toLocalFile()).constData(), 0), 0);
    const Unprivileged user;
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s, {file})),
              u"Impossible de lire le fichier « secret »."_s);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ClientUploads, AFileThatFailsWhileItIsReadIsNotUploaded)
{
    // The first page of memory belongs to no process.
    EXPECT_EQ(failureOf(client->uploadAttachments(u"ABC-1"_s,
                                                  {QUrl::fromLocalFile(u"/proc/self/mem"_s)})),
              u"Impossible de lire le fichier « mem »."_s);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ClientUploads, HowMuchWasSentIsTold)
{
    server.answer(RawAnswer::json("[]"));
    QList<UploadProgress> told;
    resultOf(client->uploadAttachments(
        u"ABC-1"_s, {localFile(u"a"_s, QByteArray(200'000, 'a')), localFile(u"b"_s, "b")}, {},
        [&](const UploadProgress &progress) { told.append(progress); }));
    ASSERT_FALSE(told.isEmpty());
    const qint64 size = lastRequest().body.size();
    EXPECT_GT(size, 200'000);
    EXPECT_EQ(told.last(), (UploadProgress{size, size}));
}

TEST_F(ClientUploads, AStopInTheMiddleSendsNoWholeRequest)
{
    server.readAtMost(1 << 20);
    std::stop_source stop;
    UploadProgress told;
    const TaskResult result(client->uploadAttachments(
        u"ABC-1"_s, {localFile(u"a"_s, QByteArray(Long, 'a'))}, stop.get_token(),
        [&](const UploadProgress &progress) { told = progress; }));
    ASSERT_TRUE(runUntil([&] { return told.sent >= 1 << 16; }));
    stop.request_stop();
    EXPECT_THROW(result.value(), Cancelled);
    server.readOn();
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
    EXPECT_TRUE(server.journal().isEmpty());
}

TEST_F(ClientUploads, AConnectionLostInTheMiddleIsNotTriedAgain)
{
    server.readAtMost(1 << 20);
    UploadProgress told;
    const TaskResult result(
        client->uploadAttachments(u"ABC-1"_s, {localFile(u"a"_s, QByteArray(Long, 'a'))}, {},
                                  [&](const UploadProgress &progress) { told = progress; }));
    // The system takes bytes before the server has read any.
    ASSERT_TRUE(runUntil([&] { return told.sent >= 1 << 16 && server.usedConnections() == 1; }));
    server.dropConnections(Ending::Reset);
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), TransportError);
    EXPECT_EQ(server.usedConnections(), 1);
}

TEST_F(ClientUploads, AFileThatShrinksWhileItIsSentIsSentAsItWas)
{
    server.answer(RawAnswer::json("[]"));
    server.readAtMost(1 << 20);
    const QByteArray content(Long, 'a');
    const QUrl file = localFile(u"a"_s, content);
    UploadProgress told;
    const TaskResult result(client->uploadAttachments(
        u"ABC-1"_s, {file}, {}, [&](const UploadProgress &progress) { told = progress; }));
    ASSERT_TRUE(runUntil([&] { return told.sent >= 1 << 16; }));
    ASSERT_TRUE(QFile::resize(file.toLocalFile(), 10));
    server.readOn();
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    const QByteArray &body = lastRequest().body;
    EXPECT_TRUE(body.mid(body.indexOf("\r\n\r\n") + 4, Long) == content);
}

} // namespace
