#include "screens/detail/description/DescriptionEditing.h"

#include "richtext/ADFMarkdown.h"
#include "richtext/ADFQueries.h"
#include "richtext/losses/MarkdownLosses.h"
#include "state/drafts/SentDescriptions.h"

#include <utility>

DescriptionEditing::~DescriptionEditing()
{
    blockSignals(true);
    abandon();
}

void DescriptionEditing::setIssue(OpenIssue *issue)
{
    if (m_issue == issue)
        return;
    if (m_issue)
        m_issue->disconnect(this);
    m_issue = issue;
    if (m_issue) {
        connect(m_issue, &OpenIssue::changed, this, &DescriptionEditing::follow);
        connect(m_issue, &OpenIssue::keyChanged, this, &DescriptionEditing::followKey);
        connect(m_issue, &OpenIssue::storeChanged, this, &DescriptionEditing::followSession);
    }
    Q_EMIT issueChanged();
    followSession();
    followKey();
    follow();
}

void DescriptionEditing::followSession()
{
    AppStore *const store = m_issue ? m_issue->store() : nullptr;
    if (m_store == store)
        return;
    if (m_store)
        AbandonedTexts::of(*m_store).disconnect(this);
    m_store = store;
    if (m_store) {
        const auto &texts = AbandonedTexts::of(*m_store);
        connect(&texts, &AbandonedTexts::changed, this, &DescriptionEditing::canResumeChanged);
        connect(&texts, &AbandonedTexts::sessionEnded, this, &DescriptionEditing::cancel);
    }
    follow();
}

/// The record of another issue arrives after its key.
void DescriptionEditing::followKey()
{
    const QString key = m_issue ? m_issue->key() : QString();
    if (m_key == key)
        return;
    cancel();
    m_key = key;
    show(std::nullopt, false);
}

void DescriptionEditing::follow()
{
    const bool isKnown = m_issue && m_issue->isKnown();
    show(isKnown ? m_issue->issue().description : std::nullopt,
         isKnown && m_issue->issue().hasDetails);
}

void DescriptionEditing::show(const std::optional<ADFNode> &document, bool hasDetails)
{
    if (m_document == document && m_hasDetails == hasDetails)
        return;
    m_document = document;
    m_hasDetails = hasDetails;
    Q_EMIT documentChanged();
    updateLosses();
}

DescriptionEditing::Content DescriptionEditing::content() const
{
    if (m_document && !ADF::isEmpty(*m_document))
        return Document;
    return m_hasDetails ? Missing : Loading;
}

bool DescriptionEditing::simplifies() const
{
    return m_document && ADF::containsRichContent(*m_document);
}

/// The losses are counted only during editing, because they take longer than showing the description.
void DescriptionEditing::updateLosses()
{
    QString losses;
    if (m_isEditing && m_document && m_store) {
        const auto users = ADF::mentionedUsers(*m_document) + m_store->mentionCandidates(m_key);
        losses = ADFMarkdown::losses(*m_document, users).sentence();
    }
    if (std::exchange(m_losses, losses) != losses)
        Q_EMIT lossesChanged();
}

void DescriptionEditing::setDraft(const QString &draft)
{
    if (!m_isEditing || std::exchange(m_draft, draft) == draft)
        return;
    Q_EMIT draftChanged();
    Q_EMIT canResumeChanged();
}

void DescriptionEditing::settle()
{
    m_original = m_draft;
    Q_EMIT canResumeChanged();
}

void DescriptionEditing::begin()
{
    if (m_isEditing || !m_store || !m_issue->isKnown())
        return;
    m_place = AbandonedTexts::of(*m_store).place(AbandonedTexts::Kind::Description, m_key);
    m_original = ADFMarkdown::markdown(m_document, m_store->calendar());
    setEditing(true, m_original);
}

void DescriptionEditing::save()
{
    if (!m_isEditing || !m_store)
        return;
    SentDescriptions::of(*m_store).save(m_draft, m_key);
    setEditing(false, {});
}

void DescriptionEditing::cancel()
{
    if (!m_isEditing)
        return;
    abandon();
    setEditing(false, {});
}

void DescriptionEditing::abandon()
{
    if (m_isEditing && m_draft != m_original)
        m_place.keep({.body = m_draft});
}

bool DescriptionEditing::canResume() const
{
    const auto abandoned = m_isEditing && m_draft == m_original ? m_place.text() : std::nullopt;
    return abandoned && abandoned->body != m_draft;
}

void DescriptionEditing::resume()
{
    if (!canResume())
        return;
    const QString text = m_place.text()->body;
    m_place.forget();
    Q_EMIT resumed(text);
}

void DescriptionEditing::setEditing(bool isEditing, const QString &draft)
{
    m_isEditing = isEditing;
    if (std::exchange(m_draft, draft) != draft)
        Q_EMIT draftChanged();
    Q_EMIT editingChanged();
    Q_EMIT canResumeChanged();
    updateLosses();
}
