#include "state/drafts/AbandonedTexts.h"

using namespace Qt::StringLiterals;

namespace {

/// Two texts that were typed one after the other.
AbandonedText joined(const AbandonedText &first, const AbandonedText &second)
{
    AbandonedText both = first;
    both.body += u"\n\n"_s + second.body;
    for (const JiraUser &user : second.mentions) {
        if (!both.mentions.contains(user))
            both.mentions.append(user);
    }
    if (second.audience == CommentAudience::Agents)
        both.audience = CommentAudience::Agents;
    return both;
}

} // namespace

AbandonedTexts &AbandonedTexts::of(AppStore &store)
{
    auto *known = store.findChild<AbandonedTexts *>({}, Qt::FindDirectChildrenOnly);
    return known ? *known : *new AbandonedTexts(store);
}

AbandonedTexts::AbandonedTexts(AppStore &store) : QObject(&store)
{
    connect(&store, &AppStore::sessionChanged, this, &AbandonedTexts::endSession);
}

void AbandonedTexts::endSession()
{
    ++m_session;
    m_texts.clear();
    Q_EMIT sessionEnded();
    Q_EMIT changed();
}

AbandonedPlace AbandonedTexts::place(Kind kind, const QString &issueKey)
{
    AbandonedPlace made;
    made.m_texts = this;
    made.m_session = m_session;
    made.m_address = {kind, issueKey};
    return made;
}

void AbandonedTexts::set(const Address &address, const std::optional<AbandonedText> &text)
{
    if (text)
        m_texts.insert_or_assign(address, *text);
    else if (m_texts.erase(address) == 0)
        return;
    Q_EMIT changed();
}

std::optional<AbandonedText> AbandonedPlace::text() const
{
    if (!isValid())
        return std::nullopt;
    const auto found = m_texts->m_texts.find(m_address);
    return found == m_texts->m_texts.end() ? std::nullopt : std::optional(found->second);
}

void AbandonedPlace::keep(const AbandonedText &text)
{
    if (isValid() && text.hasWords())
        m_texts->set(m_address, text);
}

void AbandonedPlace::keepBefore(const AbandonedText &text)
{
    const auto present = this->text();
    keep(present ? joined(text, *present) : text);
}

void AbandonedPlace::forget()
{
    if (isValid())
        m_texts->set(m_address, std::nullopt);
}

void AbandonedPlace::forget(const AbandonedText &text)
{
    if (this->text() == text)
        forget();
}
