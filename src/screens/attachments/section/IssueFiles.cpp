#include "screens/attachments/section/IssueFiles.h"

#include "async/Spawn.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QCoro::Task<> awaited(QCoro::Task<QList<Attachment>> upload)
{
    co_await upload;
}

} // namespace

void IssueFiles::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store) {
        m_store->disconnect(this);
        m_store->uploads().disconnect(this);
    }
    m_store = store;
    if (m_store) {
        for (const auto change :
             {&AppStore::issuesChanged, &AppStore::detailsChanged, &AppStore::myOpenIssuesChanged})
            connect(m_store, change, this, &IssueFiles::update);
        connect(&m_store->uploads(), &Uploads::changed, this, &IssueFiles::noteUploads);
    }
    Q_EMIT storeChanged();
    update();
}

void IssueFiles::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    Q_EMIT keyChanged();
    update();
}

void IssueFiles::noteUploads(const QString &key)
{
    if (key == m_key)
        update();
}

void IssueFiles::update()
{
    const auto known = m_store ? m_store->issue(m_key) : std::nullopt;
    const QList<Attachment> attachments = known ? (*known)->attachments : QList<Attachment>();
    const auto uploads = m_store ? m_store->uploads().ofIssue(m_key) : QList<RunningUpload>();
    if (m_attachments == attachments && m_uploads == uploads)
        return;
    const int tilesBefore = tileCount();
    const bool hasOtherFiles = m_attachments != attachments;
    m_attachments = attachments;
    m_uploads = uploads;
    m_tiles.setTiles(attachments, uploads);
    // The progress of an upload concerns its tiles only.
    if (hasOtherFiles || tileCount() != tilesBefore)
        Q_EMIT changed();
}

QList<AttachmentFile> IssueFiles::files() const
{
    QList<AttachmentFile> files;
    for (const Attachment &attachment : m_attachments)
        files.append({attachment});
    return files;
}

QString IssueFiles::dropText() const
{
    return u"Déposer pour joindre à "_s + m_key;
}

void IssueFiles::upload(const QList<QUrl> &addresses)
{
    uploadTo(m_key, addresses);
}

void IssueFiles::uploadTo(const QString &key, const QList<QUrl> &addresses)
{
    QList<QUrl> files = addresses;
    files.removeIf([](const QUrl &address) { return !address.isLocalFile(); });
    if (m_store && !files.isEmpty())
        spawn(awaited(m_store->uploadAttachments(key, files)));
}

void IssueFiles::paste()
{
    if (m_store)
        spawn(m_store->uploadFromPasteboard(m_key));
}

void IssueFiles::cancel(const UploadFacts &upload)
{
    if (m_store)
        m_store->uploads().cancel(upload.upload.id);
}

void IssueFiles::remove(const AttachmentFile &file)
{
    const auto known = std::ranges::find(m_attachments, file.id(), &Attachment::id);
    if (m_store && known != m_attachments.end())
        m_store->deleteAttachment(file.attachment, m_key);
}
