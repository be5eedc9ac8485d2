#include "jira/AttachmentTransfer.h"

#include "http/NetworkRequest.h"
#include "http/TransportError.h"
#include "jira/AttachmentCache.h"
#include "jira/ErrorMessage.h"
#include "jira/MultipartForm.h"
#include "jira/SiteRequests.h"
#include "jira/wire/AttachmentDTO.h"
#include "jira/wire/Models.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

constexpr int TooLargeStatus = 413;

/// How much of a file is read before the next look at the stop token. A slow disk needs less than a second for it.
constexpr qint64 ReadAtOnce = 1024LL * 1024;

FormFile readFile(const QUrl &url, const std::stop_token &stop)
{
    const QString path = url.toLocalFile();
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    // A folder can be opened too on some systems, and a pipe would be waited for without end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        throw Failure(u"Impossible de lire le fichier « "_s + name + u" »."_s);
    FormFile result{name, {}};
    result.content.reserve(file.size());
    // The size of a file says nothing about its end: some files of the system have a content and no size.
    for (QByteArray part = file.read(ReadAtOnce); !part.isEmpty(); part = file.read(ReadAtOnce)) {
        if (stop.stop_requested())
            throw Cancelled();
        result.content += part;
    }
    if (file.error() != QFileDevice::NoError)
        throw Failure(u"Impossible de lire le fichier « "_s + name + u" »."_s);
    return result;
}

HttpRequest uploadRequest(const QUrl &url, const QList<QUrl> &files, const std::stop_token &stop)
{
    QList<FormFile> read;
    for (const QUrl &file : files)
        read.append(readFile(file, stop));
    const QByteArray boundary = MultipartForm::newBoundary();
    const QByteArray body = MultipartForm::body(read, boundary);
    return {.verb = "POST",
            .url = url,
            .purpose = HttpRequest::Purpose::Write,
            .headers = {{"Accept", "application/json"},
                        {"X-Atlassian-Token", "no-check"},
                        {"Content-Type", "multipart/form-data; boundary=" + boundary}},
            .body = body,
            .limits = HttpRequest::transferLimits(body.size()),
            .saveAs = {}};
}

QUrl addressOf(const JiraRequest &request, const QUrl &site)
{
    const auto url = request.url(site);
    if (!url)
        throw JiraError(JiraError::InvalidSite());
    return *url;
}

QString uploadMessage(int status, const QByteArray &body)
{
    return status == TooLargeStatus ? u"Fichier trop volumineux pour Jira."_s : errorMessage(body);
}

bool isPage(const QByteArray &mediaType)
{
    return mediaType == "text/html" || mediaType == "application/xhtml+xml";
}

/// True if the stored response is the attachment. A web page, for example one for signing in, is one only if a web page
/// was attached.
bool isAttachment(const HttpAnswer &answer, const Attachment &attachment)
{
    const bool hasItsSize = attachment.size == 0 || answer.file->size() == attachment.size;
    return hasItsSize &&
           (!isPage(answer.mediaType) || isPage(mediaType(attachment.mimeType.toLatin1())));
}

/// The path of an earlier download. A file of another size, or of a size that nobody knows, may be anything.
std::optional<QString> kept(const QString &path, const Attachment &attachment)
{
    const QFileInfo file(path);
    const bool isOurs = !QFileInfo(file.path()).isSymLink() && !file.isSymLink() && file.isFile();
    return isOurs && attachment.size > 0 && file.size() == attachment.size ? std::optional(path)
                                                                           : std::nullopt;
}

/// Removes whatever is at the path unless a file can be renamed over it. A link is removed, not what it leads to.
void makeWay(const QString &target)
{
    const QFileInfo folder(QFileInfo(target).path());
    if (folder.isSymLink())
        QFile::remove(folder.filePath());
    QDir().mkpath(folder.filePath());
    const QFileInfo existing(target);
    if (existing.isDir() && !existing.isSymLink())
        QDir(target).removeRecursively();
}

/// Moves a complete file to its final path and replaces whatever exists there.
QUrl moveIntoPlace(QTemporaryFile &file, const QString &target)
{
    std::error_code failed;
    makeWay(target);
    // `fileName` gives the temporary file a name if it has none yet, which the rename below needs.
    const QString name = file.fileName();
    file.close();
    std::filesystem::rename(name.toStdString(), target.toStdString(), failed);
    if (failed)
        throw TransportError(TransportError::Kind::NotStored);
    file.setAutoRemove(false);
    return QUrl::fromLocalFile(target);
}

HttpRequest downloadRequest(const Attachment &attachment, const QUrl &address,
                            const QString &folder)
{
    const qint64 most = attachment.size > 0 ? attachment.size : HttpRequest::MaximumInMemory;
    return {.url = address,
            .headers = {},
            .body = {},
            .limits = HttpRequest::transferLimits(most),
            .saveAs = folder + u"/.download-XXXXXX"_s,
            .mostStored = most};
}

JiraError downloadError(const HttpAnswer &answer, const Attachment &attachment)
{
    return JiraError(JiraError::Http{answer.status, u"Téléchargement de « "_s +
                                                        attachment.filename + u" » impossible."_s});
}

} // namespace

QCoro::Task<QList<Attachment>> uploaded(SiteConnectionPtr connection, QString key,
                                        QList<QUrl> files, QDateTime now, std::stop_token stop,
                                        UploadObserver observer)
{
    const QUrl url = addressOf(SiteRequests::attachments(key), connection->site);
    auto build = [url, files = std::move(files), stop] { return uploadRequest(url, files, stop); };
    HttpRequest request = co_await offThread(std::move(build));
    const HttpAnswer answer =
        co_await exchange(std::move(connection), std::move(request), stop, std::move(observer));
    if (!answer.isSuccess()) {
        auto reading = [status = answer.status, body = answer.body] {
            return uploadMessage(status, body);
        };
        const QString message = co_await offThread(std::move(reading));
        throw JiraError(JiraError::Http{answer.status, message});
    }
    auto mapping = [now](const QList<AttachmentDTO> &stored) { return modelsOf(stored, now); };
    co_return co_await mapped<QList<AttachmentDTO>>(answer.body, std::move(mapping),
                                                    std::move(stop));
}

QCoro::Task<QUrl> downloaded(SiteConnectionPtr connection, Attachment attachment, QString folder,
                             std::stop_token stop)
{
    const QString target = AttachmentCache::file(folder, attachment);
    auto lookUp = [target, attachment] { return kept(target, attachment); };
    if (const auto stored = co_await offThread(std::move(lookUp)))
        co_return QUrl::fromLocalFile(*stored);
    if (!attachment.contentURL)
        throw JiraError(JiraError::InvalidResponse());
    HttpRequest request = downloadRequest(attachment, *attachment.contentURL, folder);
    HttpAnswer answer;
    try {
        answer = co_await exchange(std::move(connection), std::move(request), std::move(stop));
    } catch (const TransportError &error) {
        if (error.kind() != TransportError::Kind::TooLarge)
            throw;
        // The response is longer than the attachment, so it is something else, and its status was a success.
        throw downloadError(HttpAnswer{.status = 200}, attachment);
    }
    if (!answer.isSuccess() || !isAttachment(answer, attachment))
        throw downloadError(answer, attachment);
    auto move = [file = answer.file, target] { return moveIntoPlace(*file, target); };
    co_return co_await offThread(std::move(move));
}
