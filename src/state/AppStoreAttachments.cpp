#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "platform/CaptureFile.h"
#include "state/AppStore.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

QString uploadedText(const QString &key, const QList<Attachment> &attachments)
{
    if (attachments.size() >= 2)
        return QString::number(attachments.size()) + u" fichiers joints à "_s + key;
    const QString name = attachments.isEmpty() ? u"Fichier"_s : attachments.first().filename;
    return u"« "_s + name + u" » joint à "_s + key;
}

/// The file name of a pasted picture, which the users of the site see.
QString captureName(const QDateTime &now, const UserCalendar &calendar)
{
    return u"Capture "_s +
           calendar.locale.toString(now.toTimeZone(calendar.zone), u"yyyy-MM-dd 'à' HH.mm.ss"_s) +
           u".png"_s;
}

QStringList namesOf(const QList<QUrl> &files)
{
    QStringList names;
    names.reserve(files.size());
    for (const QUrl &file : files)
        names += file.fileName();
    return names;
}

} // namespace

QCoro::Task<QList<Attachment>> AppStore::uploadAttachments(QString key, QList<QUrl> files)
{
    return unlessGone(this, upload(key, files), QList<Attachment>());
}

QCoro::Task<QList<Attachment>> AppStore::upload(QString key, QList<QUrl> files)
{
    Session *const session = m_session->get();
    if (!session || files.isEmpty())
        co_return QList<Attachment>();
    const auto service = session->service();
    const PendingWrites::Token write = m_writes.begin();
    Uploads::Running upload = m_uploads.begin(key, namesOf(files), m_context.clock);
    m_uploading.insert(key, m_uploads.fileCount(key));
    const auto stored = co_await whileAlive(
        session, settled(service, service->uploadAttachments(key, files, upload->stop(),
                                                             upload->observer())));
    endUpload(std::move(upload), stored);
    co_return stored.value_or(QList<Attachment>());
}

QCoro::Task<> AppStore::uploadFromPasteboard(QString key)
{
    return unlessGone(this, uploadPasted(key));
}

QCoro::Task<> AppStore::uploadPasted(QString key)
{
    Session *const session = m_session->get();
    if (!session)
        co_return;
    const QList<QUrl> files = m_context.desktop.pastedFiles();
    if (!files.isEmpty()) {
        co_await whileAlive(session, upload(key, files));
        co_return;
    }
    const QByteArray png =
        co_await whileAlive(session, CaptureFile::png(m_context.desktop.pastedImage()));
    if (png.isEmpty()) {
        toast(u"Rien à joindre dans le presse-papiers"_s, u"doc.on.clipboard"_s, ToastKind::Error);
        co_return;
    }
    const QString name = captureName(m_context.clock.now(), m_context.calendar);
    // The file is deleted when this coroutine ends.
    const auto file = co_await whileAlive(
        session, settled(nullptr, CaptureFile::store(png, name, QDir::tempPath())));
    if (file)
        co_await whileAlive(session, upload(key, {file->address()}));
    else
        report(file.error());
}

QCoro::Task<std::optional<QUrl>> AppStore::localFile(Attachment attachment)
{
    return unlessGone(this, downloaded(attachment), std::optional<QUrl>());
}

QCoro::Task<std::optional<QUrl>> AppStore::downloaded(Attachment attachment)
{
    Session *const session = m_session->get();
    if (!session)
        co_return std::nullopt;
    const auto service = session->service();
    const auto file = co_await whileAlive(session, settled(service, service->download(attachment)));
    if (file)
        co_return *file;
    report(file.error());
    co_return std::nullopt;
}

void AppStore::deleteAttachment(const Attachment &attachment, const QString &key)
{
    carryOut({OptimisticEdit{key, AttachmentRemoval{attachment}}});
}

void AppStore::endUpload(Uploads::Running upload, const Settled<QList<Attachment>> &stored)
{
    const Batch batch(*this);
    const QString key = upload->upload().issueKey;
    if (stored)
        takeUploaded(key, *stored);
    else
        reportRefusal(stored.error());
    upload.reset();
    m_uploading.insert(key, m_uploads.fileCount(key));
    // The site may have stored the files before it noticed the end of a cancelled upload.
    if (!stored && stored.error().isCancellation && m_details->contains(key))
        spawn(loadDetails(key));
}

void AppStore::takeUploaded(const QString &key, const QList<Attachment> &attachments)
{
    const QDateTime now = m_context.clock.now();
    for (const Attachment &attachment : attachments)
        (*m_session)->edits.noteStored({key, AttachmentAddition{attachment}}, now);
    mutate({{key, [&attachments](Issue &issue) {
                 for (const Attachment &attachment : attachments)
                     AttachmentAddition{attachment}.apply(issue);
             }}});
    toast(uploadedText(key, attachments), u"paperclip"_s);
}
