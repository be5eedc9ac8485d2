#include "screens/composer/Composition.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "platform/Wording.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

/// Sends a comment whose draft may go in the meantime. The text of a comment that is then refused is kept, in front of what
/// was typed after it.
QCoro::Task<bool> keptIfRefused(QCoro::Task<bool> posting, QPointer<CommentDraft> draft,
                                AbandonedPlace place, OutgoingComment comment)
{
    const bool isPosted = co_await posting;
    if (!isPosted && !draft)
        place.keepBefore(
            {.body = comment.text, .mentions = comment.mentions, .audience = comment.audience});
    co_return isPosted;
}

} // namespace

Composition::Composition(QObject *parent) : QObject(parent) {}

Composition::~Composition()
{
    blockSignals(true);
    abandon();
}

void Composition::restart(const AbandonedPlace &place)
{
    abandon();
    m_place = place;
    m_draft = std::make_unique<CommentDraft>(CommentDraft::Sources{
        .clock = clock(),
        .candidates = [this] { return candidates(); },
        .search = [this](const QString &words,
                         const std::stop_token &stop) { return search(words, stop); }});
    m_draft->setAllowsInternal(m_allowsInternal);
    connect(m_draft.get(), &CommentDraft::changed, this, &Composition::changed);
    connect(m_draft.get(), &CommentDraft::replaced, this, &Composition::replaced);
    Q_EMIT restarted();
    Q_EMIT changed();
}

void Composition::abandon()
{
    if (m_draft)
        m_place.keep({.body = m_draft->unsentText(),
                      .mentions = m_draft->mentioned(),
                      .audience = m_draft->unsentAudience()});
}

bool Composition::canResume() const
{
    return m_draft && m_draft->text().isEmpty() && m_place.text();
}

void Composition::resume()
{
    if (!canResume())
        return;
    const AbandonedText abandoned = *m_place.text();
    m_place.forget();
    m_draft->restore({abandoned.body, abandoned.audience, abandoned.mentions});
}

void Composition::refresh()
{
    if (m_draft)
        m_draft->refresh();
}

// The readers ---------------------------------------------------------------------------------------------------------

void Composition::setAllowsInternal(bool allows)
{
    if (m_allowsInternal == allows)
        return;
    m_allowsInternal = allows;
    if (m_draft)
        m_draft->setAllowsInternal(allows);
    Q_EMIT changed();
}

bool Composition::hasReaders() const
{
    // An internal note stays visible as one if the project is no longer a service project.
    return m_allowsInternal || isInternal();
}

bool Composition::isInternal() const
{
    return m_draft && m_draft->audience() == CommentAudience::Agents;
}

void Composition::setIsInternal(bool internal)
{
    if (m_draft)
        m_draft->setAudience(internal ? CommentAudience::Agents : CommentAudience::Everyone);
}

QString Composition::placeholder() const
{
    if (isInternal())
        return u"Note interne, invisible pour le client… (@ pour mentionner)"_s;
    return hasReaders() ? u"Répondre au client…"_s
                        : u"Laisser un commentaire… (@ pour mentionner)"_s;
}

QString Composition::sendTitle() const
{
    return Wording::localized(isInternal() ? u"Ajouter la note interne (⌘↩)"_s : u"Envoyer (⌘↩)"_s);
}

// The text ------------------------------------------------------------------------------------------------------------

QList<JiraUser> Composition::suggestions() const
{
    return m_draft ? m_draft->suggestions() : QList<JiraUser>();
}

int Composition::highlighted() const
{
    return m_draft ? m_draft->highlighted() : 0;
}

void Composition::setHighlighted(int index)
{
    if (m_draft)
        m_draft->setHighlighted(index);
}

void Composition::edit(const QString &text, int caret)
{
    if (m_draft)
        m_draft->edit(text, caret);
}

void Composition::beginMention()
{
    if (m_draft)
        m_draft->beginMention();
}

void Composition::dismiss()
{
    if (m_draft)
        m_draft->dismiss();
}

void Composition::pick(int index)
{
    if (m_draft)
        m_draft->pick(index);
}

bool Composition::take(CommentDraft::Key key)
{
    return m_draft && m_draft->take(key);
}

// Sending -------------------------------------------------------------------------------------------------------------

bool Composition::canSend() const
{
    return m_draft && m_draft->canSend();
}

bool Composition::isSending() const
{
    return m_draft && m_draft->isSending();
}

void Composition::send()
{
    if (!m_draft)
        return;
    if (const auto comment = m_draft->beginSending())
        spawn(sendNow(*comment));
}

QCoro::Task<> Composition::sendNow(OutgoingComment comment)
{
    const QPointer<CommentDraft> draft = m_draft.get();
    const bool isPosted =
        co_await whileAlive(this, keptIfRefused(post(comment), draft, m_place, comment));
    if (draft)
        draft->endSending(isPosted);
}

void Composition::attach(const QList<QUrl> &files)
{
    if (m_draft && !files.isEmpty())
        spawn(attachNow(files));
}

QCoro::Task<> Composition::attachNow(QList<QUrl> files)
{
    const QPointer<CommentDraft> draft = m_draft.get();
    const auto stored = co_await whileAlive(this, upload(files));
    if (!draft)
        co_return;
    const QString before = draft->text();
    draft->addLinks(stored);
    if (draft->text() != before)
        Q_EMIT linked();
}
