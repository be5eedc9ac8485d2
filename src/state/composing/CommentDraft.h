#pragma once

#include "model/Attachment.h"
#include "state/composing/MentionQuery.h"
#include "state/composing/MentionSearch.h"
#include "state/edits/CommentAudience.h"

#include <QObject>

/// A comment as it is sent.
struct OutgoingComment
{
    /// Markdown without white space around it. Never empty.
    QString text;
    CommentAudience audience = CommentAudience::Everyone;
    /// The users who were picked, for whom an "@" with their name becomes a mention.
    QList<JiraUser> mentions;

    bool operator==(const OutgoingComment &) const = default;
};

/// A comment on one issue while it is written: the text, the mention that is being typed with its suggestions, who will
/// read it, and whether it is being sent. It has no access to the screen: the editor reports each change of its text and
/// caret, and carries out the changes that this object requests.
class CommentDraft : public QObject
{
    Q_OBJECT

public:
    /// What the draft needs from the program.
    struct Sources
    {
        Clock &clock;
        /// The users known here who can be mentioned, the nearest first.
        std::function<QList<JiraUser>()> candidates;
        /// The users whom the server finds.
        MentionSearch::Search search;
    };
    /// The keys that work on the suggestions.
    enum class Key { Up, Down, Accept, Dismiss };

    explicit CommentDraft(Sources sources, QObject *parent = nullptr);

    // The text --------------------------------------------------------------------------------------------------------
    const QString &text() const { return m_text; }
    qsizetype caret() const { return m_caret; }
    /// The editor has this text and this caret.
    void edit(const QString &text, qsizetype caret);
    /// Begins a mention at the caret, after a blank where one is needed.
    void beginMention();
    /// Adds a line with a link for each attachment that has an address.
    void addLinks(const QList<Attachment> &attachments);
    /// What would be lost with the draft: the text without the part that is being sent.
    QString unsentText() const;
    /// Who was to read `unsentText`.
    CommentAudience unsentAudience() const;
    /// Replaces the text by one that was abandoned, with its picked users and its readers. An internal note stays one,
    /// even if the project does not allow it, or is not known yet.
    void restore(const OutgoingComment &abandoned);

    // Mentions --------------------------------------------------------------------------------------------------------
    /// The words of the mention that is being typed; nothing if there is none, or the user has dismissed these words.
    std::optional<QString> words() const;
    const QList<JiraUser> &suggestions() const { return m_suggestions; }
    /// The index of the highlighted suggestion; 0 if there are none.
    int highlighted() const;
    void setHighlighted(int index);
    /// Carries out a key press in the editor. Returns false if there are no suggestions: the press then has its usual
    /// effect.
    bool take(Key key);
    /// Completes the mention that is being typed with this suggestion. Has no effect without that suggestion.
    void pick(int index);
    /// Hides the suggestions until the words change.
    void dismiss();
    /// The candidates may have changed.
    void refresh();
    /// The users who were picked since the last comment was sent.
    const QList<JiraUser> &mentioned() const { return m_mentioned; }

    // The readers -----------------------------------------------------------------------------------------------------
    /// Whether the project has customers, so that a comment can be hidden from them. If a project loses this while an
    /// internal note is being written, the note remains one until the user decides otherwise.
    bool allowsInternal() const { return m_allowsInternal; }
    void setAllowsInternal(bool allows);
    /// Who will read the comment. `Agents` is an internal note.
    CommentAudience audience() const { return m_audience; }
    /// `Agents` has no effect in a project that does not allow it.
    void setAudience(CommentAudience audience);

    // Sending ---------------------------------------------------------------------------------------------------------
    bool isSending() const { return m_sent.has_value(); }
    bool canSend() const;
    /// The comment to send; nothing while there are no words or another comment is being sent. `endSending` must follow.
    std::optional<OutgoingComment> beginSending();
    /// The comment was posted or refused. A posted text is removed, except for what was typed after it in the meantime; a
    /// refused one stays, with its mentions. What stays of an internal note is one, whatever was chosen in the meantime.
    void endSending(bool posted);

Q_SIGNALS:
    /// The text, the caret or anything computed from them has changed.
    void changed();
    /// The editor must replace the characters from `start` up to `end`, and then have this caret.
    void replaced(int start, int end, const QString &words, int caret);

private:
    struct Sent
    {
        QString text;
        qsizetype mentions = 0;
        CommentAudience audience = CommentAudience::Everyone;
    };

    void replace(qsizetype start, qsizetype end, const QString &words);
    /// Whether the text still contains what was sent, because it was changed in the meantime.
    bool remains(const Sent &sent) const { return !m_text.startsWith(sent.text); }
    void removeSent(const QString &sent);
    void follow();
    void updateSuggestions();
    std::optional<MentionQuery> query() const;

    Sources m_sources;
    QString m_text;
    qsizetype m_caret = 0;
    CommentAudience m_audience = CommentAudience::Everyone;
    bool m_allowsInternal = false;
    std::optional<Sent> m_sent;
    QList<JiraUser> m_mentioned;
    /// The words on which the user has dismissed the suggestions.
    std::optional<QString> m_dismissed;
    /// The words to which the highlight belongs.
    std::optional<QString> m_lastWords;
    QList<JiraUser> m_suggestions;
    int m_highlighted = 0;
    MentionSearch m_search;
};
