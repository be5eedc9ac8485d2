#include "state/composing/CommentDraft.h"

#include "state/composing/AttachmentLinks.h"
#include "state/composing/MentionRanking.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

CommentDraft::CommentDraft(Sources sources, QObject *parent)
    : QObject(parent),
      m_sources(std::move(sources)),
      m_search(m_sources.clock, m_sources.search, [this] { refresh(); })
{
}

void CommentDraft::edit(const QString &text, qsizetype caret)
{
    if (m_text == text && m_caret == caret)
        return;
    m_text = text;
    m_caret = std::clamp<qsizetype>(caret, 0, text.size());
    follow();
}

void CommentDraft::replace(qsizetype start, qsizetype end, const QString &words)
{
    m_text.replace(start, end - start, words);
    m_caret = start + words.size();
    follow();
    Q_EMIT replaced(int(start), int(end), words, int(m_caret));
}

void CommentDraft::follow()
{
    const auto present = words();
    if (std::exchange(m_lastWords, present) != present)
        m_highlighted = 0;
    m_search.setWords(present);
    updateSuggestions();
    Q_EMIT changed();
}

void CommentDraft::refresh()
{
    const QString chosen = m_suggestions.value(highlighted()).id;
    updateSuggestions();
    // Whom the user has highlighted may have another place now. The first one is highlighted without a choice.
    const auto moved = std::ranges::find(m_suggestions, chosen, &JiraUser::id);
    if (m_highlighted > 0 && moved != m_suggestions.end())
        m_highlighted = int(moved - m_suggestions.begin());
    Q_EMIT changed();
}

void CommentDraft::updateSuggestions()
{
    const auto present = words();
    m_suggestions = present
                        ? mentionSuggestions(*present, m_sources.candidates() + m_search.found())
                        : QList<JiraUser>();
}

std::optional<MentionQuery> CommentDraft::query() const
{
    auto found = mentionQuery(m_text, m_caret);
    return found && found->words != m_dismissed ? found : std::nullopt;
}

std::optional<QString> CommentDraft::words() const
{
    const auto found = query();
    return found ? std::optional(found->words) : std::nullopt;
}

int CommentDraft::highlighted() const
{
    return std::max(0, std::min(m_highlighted, int(m_suggestions.size()) - 1));
}

void CommentDraft::setHighlighted(int index)
{
    const int last = std::max(0, int(m_suggestions.size()) - 1);
    const int before = highlighted();
    m_highlighted = std::clamp(index, 0, last);
    if (m_highlighted != before)
        Q_EMIT changed();
}

bool CommentDraft::take(Key key)
{
    if (m_suggestions.isEmpty())
        return false;
    switch (key) {
    case Key::Up:
        setHighlighted(highlighted() - 1);
        break;
    case Key::Down:
        setHighlighted(highlighted() + 1);
        break;
    case Key::Accept:
        pick(highlighted());
        break;
    case Key::Dismiss:
        dismiss();
        break;
    }
    return true;
}

void CommentDraft::pick(int index)
{
    const auto found = query();
    if (!found || index < 0 || index >= m_suggestions.size())
        return;
    // A copy, because the suggestions change with the text.
    const JiraUser user = m_suggestions[index];
    const auto isPicked = [&](const JiraUser &each) { return each.id == user.id; };
    if (std::ranges::none_of(m_mentioned, isPicked))
        m_mentioned.append(user);
    m_search.clear();
    // A name of one word is still a query after its blank. It must not suggest a longer name.
    m_dismissed = user.name + u' ';
    const bool isBeforeBlank = m_caret < m_text.size() && m_text[m_caret] == u' ';
    replace(found->start, m_caret + (isBeforeBlank ? 1 : 0), u'@' + user.name + u' ');
}

void CommentDraft::dismiss()
{
    const auto present = words();
    if (!present)
        return;
    m_dismissed = present;
    follow();
}

void CommentDraft::beginMention()
{
    const bool needsBlank = m_caret > 0 && !m_text[m_caret - 1].isSpace();
    replace(m_caret, m_caret, needsBlank ? u" @"_s : u"@"_s);
}

void CommentDraft::addLinks(const QList<Attachment> &attachments)
{
    const QString lines = attachmentLinks(attachments);
    if (lines.isEmpty())
        return;
    const bool needsBreak = !m_text.isEmpty() && !m_text.endsWith(u'\n');
    replace(m_text.size(), m_text.size(), needsBreak ? u'\n' + lines : lines);
}

QString CommentDraft::unsentText() const
{
    return m_sent && !remains(*m_sent) ? m_text.sliced(m_sent->text.size()) : m_text;
}

CommentAudience CommentDraft::unsentAudience() const
{
    return m_sent && remains(*m_sent) && m_sent->audience == CommentAudience::Agents
               ? CommentAudience::Agents
               : m_audience;
}

void CommentDraft::restore(const OutgoingComment &abandoned)
{
    m_mentioned = abandoned.mentions;
    m_audience = abandoned.audience;
    // A mention at the end of the text was typed earlier, and must suggest nobody.
    const auto last = mentionQuery(abandoned.text, abandoned.text.size());
    m_dismissed = last ? std::optional(last->words) : std::nullopt;
    replace(0, m_text.size(), abandoned.text);
}

void CommentDraft::setAllowsInternal(bool allows)
{
    if (std::exchange(m_allowsInternal, allows) != allows)
        Q_EMIT changed();
}

void CommentDraft::setAudience(CommentAudience audience)
{
    if (m_audience == audience || (audience == CommentAudience::Agents && !m_allowsInternal))
        return;
    m_audience = audience;
    Q_EMIT changed();
}

bool CommentDraft::canSend() const
{
    return !isSending() && !m_text.trimmed().isEmpty();
}

std::optional<OutgoingComment> CommentDraft::beginSending()
{
    if (!canSend())
        return std::nullopt;
    m_sent = Sent{m_text, m_mentioned.size(), m_audience};
    Q_EMIT changed();
    return OutgoingComment{m_text.trimmed(), m_audience, m_mentioned};
}

void CommentDraft::endSending(bool posted)
{
    const auto sent = std::exchange(m_sent, std::nullopt);
    if (!sent)
        return;
    // Otherwise the note would leave without its marking when it is sent again.
    if ((!posted || remains(*sent)) && sent->audience == CommentAudience::Agents &&
        !m_text.trimmed().isEmpty())
        m_audience = CommentAudience::Agents;
    if (!posted) {
        Q_EMIT changed();
        return;
    }
    m_mentioned.remove(0, sent->mentions);
    m_dismissed.reset();
    removeSent(sent->text);
}

void CommentDraft::removeSent(const QString &sent)
{
    // A text that was changed while it was being sent is left to the user.
    if (!m_text.startsWith(sent))
        return follow();
    m_text.remove(0, sent.size());
    m_caret = std::max<qsizetype>(0, m_caret - sent.size());
    follow();
    Q_EMIT replaced(0, int(sent.size()), {}, int(m_caret));
}
