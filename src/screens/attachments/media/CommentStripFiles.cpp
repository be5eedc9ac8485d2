#include "screens/attachments/media/CommentStripFiles.h"

#include "screens/attachments/media/CommentFiles.h"

void CommentStripFiles::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        for (const auto change : {&AppStore::issuesChanged, &AppStore::detailsChanged,
                                  &AppStore::myOpenIssuesChanged, &AppStore::commentsChanged})
            connect(m_store, change, this, &CommentStripFiles::update);
    }
    Q_EMIT storeChanged();
    update();
}

void CommentStripFiles::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    Q_EMIT keyChanged();
    update();
}

void CommentStripFiles::setCommentID(const QString &id)
{
    if (m_commentID == id)
        return;
    m_commentID = id;
    Q_EMIT keyChanged();
    update();
}

void CommentStripFiles::update()
{
    const auto issue = m_store ? m_store->issue(m_key) : std::nullopt;
    const QList<Comment> comments = m_store ? m_store->comments().value(m_key) : QList<Comment>();
    const auto comment = std::ranges::find(comments, m_commentID, &Comment::id);
    QList<AttachmentFile> files;
    if (issue && comment != comments.end()) {
        for (const Attachment &attachment : referencedFiles(*comment, (*issue)->attachments))
            files.append({attachment});
    }
    if (m_files == files)
        return;
    m_files = files;
    Q_EMIT filesChanged();
}
