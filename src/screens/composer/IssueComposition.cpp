#include "screens/composer/IssueComposition.h"

using namespace Qt::StringLiterals;

namespace {

/// Posts the comment even if the composer goes in the meantime, because the user has sent it.
QCoro::Task<bool> posted(QPointer<AppStore> store, QString key, OutgoingComment comment)
{
    const bool isPosted =
        co_await store->addComment(comment.text, key, comment.audience, comment.mentions);
    if (!isPosted || !store)
        co_return isPosted;
    if (comment.audience == CommentAudience::Agents)
        store->toast(u"Note interne ajoutée"_s, u"lock.fill"_s);
    else
        store->toast(u"Commentaire envoyé"_s, u"checkmark.circle.fill"_s);
    co_return true;
}

} // namespace

void IssueComposition::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store) {
        m_store->disconnect(this);
        AbandonedTexts::of(*m_store).disconnect(this);
    }
    m_store = store;
    if (m_store) {
        for (const auto change : {&AppStoreFields::commentsChanged, &AppStoreFields::detailsChanged,
                                  &AppStoreFields::assignablesChanged, &AppStoreFields::meChanged})
            connect(m_store, change, this, [this] { refresh(); });
        const auto &texts = AbandonedTexts::of(*m_store);
        connect(&texts, &AbandonedTexts::changed, this, &Composition::changed);
        connect(&texts, &AbandonedTexts::sessionEnded, this, &IssueComposition::begin);
        begin();
    }
    Q_EMIT storeChanged();
}

void IssueComposition::begin()
{
    restart(AbandonedTexts::of(*m_store).place(AbandonedTexts::Kind::Comment, m_issueKey));
}

void IssueComposition::setIssueKey(const QString &key)
{
    if (m_issueKey == key)
        return;
    m_issueKey = key;
    if (m_store)
        begin();
    Q_EMIT issueChanged();
}

void IssueComposition::setProjectKey(const QString &key)
{
    if (m_projectKey == key)
        return;
    m_projectKey = key;
    refresh();
    Q_EMIT issueChanged();
}

QList<JiraUser> IssueComposition::candidates() const
{
    return m_store ? m_store->mentionCandidates(m_issueKey, m_projectKey) : QList<JiraUser>();
}

QCoro::Task<QList<JiraUser>> IssueComposition::search(QString words, std::stop_token stop)
{
    return m_store->searchUsers(words, stop);
}

QCoro::Task<bool> IssueComposition::post(OutgoingComment comment)
{
    return posted(m_store, m_issueKey, comment);
}

QCoro::Task<QList<Attachment>> IssueComposition::upload(QList<QUrl> files)
{
    return m_store->uploadAttachments(m_issueKey, files);
}
