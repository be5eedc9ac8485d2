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
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        for (const auto change : {&AppStore::issuesChanged, &AppStore::detailsChanged,
                                  &AppStore::myOpenIssuesChanged, &AppStore::uploadingChanged})
            connect(m_store, change, this, &IssueFiles::update);
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

void IssueFiles::update()
{
    const auto known = m_store ? m_store->issue(m_key) : std::nullopt;
    const QList<Attachment> attachments = known ? (*known)->attachments : QList<Attachment>();
    const int uploads = m_store ? m_store->uploading().value(m_key) : 0;
    if (m_attachments == attachments && m_tiles.rowCount() == attachments.size() + uploads)
        return;
    m_attachments = attachments;
    m_tiles.setTiles(attachments, uploads);
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

void IssueFiles::remove(const AttachmentFile &file)
{
    const auto known = std::ranges::find(m_attachments, file.id(), &Attachment::id);
    if (m_store && known != m_attachments.end())
        m_store->deleteAttachment(file.attachment, m_key);
}
